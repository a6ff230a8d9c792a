#include "transactions/screens/enterinventory.h"

#include "base/formats.h"
#include "base/plural.h"
#include "base/ruleerror.h"
#include "controls/screens/listscreen.h"
#include "controls/windows/icons.h"
#include "controls/windows/screenmetrics.h"
#include "controls/windows/typing.h"
#include "data/datamodule.h"
#include "data/fields.h"
#include "engine/values/error.h"
#include "transactions/documentkinds.h"
#include "transactions/screens/countdifferencesscreen.h"
#include "transactions/screens/countsearch.h"
#include "ui_enterinventory.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QScopeGuard>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr int shownRows = 16;

CountDrafts draftsOf(TDataModuleTallymere &data)
{
    return CountDrafts(CountDrafts::nameOf(data.databaseTallymere()), data.currentUser());
}

} // namespace

TFormEnterInventory::TFormEnterInventory(ScreenContext &context, QWidget *parent)
    : EntryScreen(context, parent)
    , m_ui(std::make_unique<Ui::TFormEnterInventory>())
    , m_count(context.data.databaseTallymere(), context.prompts, draftsOf(context.data))
    , m_last(Settings::countScreen, context.data, context.settings)
{
    m_ui->setupUi(this);
    m_ui->chkBlind->setChecked(m_last.read().value(Settings::BlindCount));
    setGlyph(*m_ui->btnDifferences, Glyph::Totals);
    m_ui->wwDBDateTimePickerInventoryDate->setToday(context.data.today());
    m_ui->wwDBDateTimePickerInventoryDate->setDate(context.data.today());
    m_ui->wwDBDateTimePickerInventoryDate->setMaximumDate(StockCount::latestDate(context.data.today()));
    m_ui->cboSearchOrder->addItems({tr("Item No"), tr("Category"), tr("Item"), tr("Standard Cost")}); // as Order
    m_ui->wwDBGridInventory->setList(
        m_count.list(),
        {.count = [this](int item, std::optional<double> quantity) { countItem(item, quantity); },
         .setCost =
             [this](int item, Engine::Money cost) {
                 m_count.setStandardCost(item, cost);
                 m_ui->wwDBGridInventory->itemChanged(item);
                 showStatus();
             },
         .sort = [this](CountList::Order order) { sortBy(order); }},
        guard());
    m_search =
        new CountSearch(*m_ui->wwIncrementalSearch1, *m_ui->lblNotFound, m_count.list(), *m_ui->wwDBGridInventory);
    fillLocations();
    connectControls();
    dateChosen();
    buildScreen();
    showList();
}

TFormEnterInventory::~TFormEnterInventory() = default;

void TFormEnterInventory::connectControls()
{
    connect(m_ui->RzComboBoxLocation, &QComboBox::activated, this,
            [this](int index) { guard().run([&] { locationChosen(index); }); });
    m_ui->RzComboBoxLocation->installEventFilter(this);
    connectGuarded(m_ui->RzCheckBoxIncludeZeroCountItems, &QCheckBox::clicked, this,
                   &TFormEnterInventory::zeroCountsChosen);
    connect(m_ui->wwDBDateTimePickerInventoryDate, &DatePicker::dateChanged, this,
            &TFormEnterInventory::dateChosen);
    connect(
        m_ui->wwDBDateTimePickerInventoryDate, &DatePicker::distantDate, this,
        [this](QDate date, QDate before) { guard().run([&] { askAboutDate(date, before); }); },
        Qt::QueuedConnection);
    connect(m_ui->wwDBDateTimePickerInventoryDate, &DatePicker::taken, this, [this] { showStatus(); });
    connect(m_ui->wwDBDateTimePickerInventoryDate, &DatePicker::refused, this, &TFormEnterInventory::showStatus);
    connect(m_ui->cboSearchOrder, &QComboBox::activated, this,
            [this](int order) { sortBy(static_cast<CountList::Order>(order)); });
    connect(m_search, &CountSearch::found, this, [this] { showStatus(); });
    connect(m_ui->wwDBGridInventory, &CountGrid::itemShown, this, [this] { showStatus(); });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, m_search, &CountSearch::start);
    connectGuarded(m_ui->chkBlind, &QCheckBox::clicked, this, &TFormEnterInventory::blindChosen);
    connectGuarded(m_ui->btnDifferences, &QPushButton::clicked, this, &TFormEnterInventory::btnDifferencesClick);
    connectGuarded(new QShortcut(itemCardKey, this), &QShortcut::activated, this,
                   &TFormEnterInventory::showItemCard);
    connectGuarded(m_ui->BitBtnOK, &QPushButton::clicked, this, &TFormEnterInventory::bitBtnOKClick);
    connect(m_ui->BitBtnCancel, &QPushButton::clicked, this, &QWidget::close);
    connectGuarded(m_ui->ActionCalculateConsumption, &QAction::triggered, this,
                   &TFormEnterInventory::actionCalculateConsumptionExecute);
}

// Not in a blind count: it tells what is on hand.
void TFormEnterInventory::showItemCard()
{
    if (m_ui->chkBlind->isChecked())
        return;
    const int item = m_ui->wwDBGridInventory->currentItem();
    if (item >= 0 && context().showItem)
        context().showItem(static_cast<int>(m_count.list().row(item).itemId));
}

void TFormEnterInventory::firstShown()
{
    const int rows = m_ui->wwDBGridInventory->heightForRows(shownRows);
    resize(std::max(m_ui->wwDBGridInventory->fullWidth(), sizeHint().width()),
           sizeHint().height() - m_ui->wwDBGridInventory->sizeHint().height() + rows);
}

// --- the location -----------------------------------------------------------------------------------------------

void TFormEnterInventory::fillLocations()
{
    for (const CountLocation &location : m_count.locations())
        m_ui->RzComboBoxLocation->addItem(location.text(), location.id);
    m_ui->RzComboBoxLocation->setCurrentIndex(-1);
}

bool TFormEnterInventory::mayLoseCounts(const QString &question)
{
    if (!m_count.hasEdits())
        return true;
    const bool confirmed = context().prompts.confirm(Question::Loss, question);
    showStatus();
    if (!confirmed)
        return false;
    m_count.dropDraft();
    return true;
}

// The grid must not show rows that go while the user is told something.
void TFormEnterInventory::closeList()
{
    m_count.close();
    m_ui->wwDBGridInventory->setHint({});
    m_ui->wwDBGridInventory->listChanged();
    m_search->forgetUnknown();
    showStatus();
}

void TFormEnterInventory::locationChosen(int index)
{
    if (!mayLoseCounts(
            tr("If you change Locations the edits you \r\nhave made to the inventory list will be lost.\r\n"
               "Proceed with changing the Location?"))) {
        m_ui->RzComboBoxLocation->setCurrentIndex(m_chosen);
        return;
    }
    closeList();
    bool goesOn = false;
    {
        const auto shown = qScopeGuard([this] {
            showList();
            showReady();
        });
        goesOn = openLocation(index);
    }
    if (goesOn)
        m_ui->wwDBGridInventory->countItem(m_count.list().behindLastCounted());
}

bool TFormEnterInventory::openLocation(int index)
{
    {
        const WaitCursor hourglass;
        if (!m_count.open(m_ui->RzComboBoxLocation->itemData(index).toInt(), zeroCountsWanted()))
            return false;
    }
    m_chosen = index;
    return offerDraft();
}

bool TFormEnterInventory::offerDraft()
{
    const std::optional<CountDraft> draft = m_count.draft();
    if (!draft)
        return false;
    const QString question =
        plural(draft->counts.size(),
               tr("You have counted %n item at this location and not calculated the usage yet (%1).\n"
                  "Do you want to go on with that count? No gives it up."),
               tr("You have counted %n items at this location and not calculated the usage yet (%1).\n"
                  "Do you want to go on with that count? No gives it up."))
            .arg(QLocale::system().toString(draft->saved, QLocale::ShortFormat));
    switch (context().prompts.yesNoCancel(question)) {
    case Answer::Yes:
        resume(*draft);
        return true;
    case Answer::No:
        m_count.dropDraft();
        return false;
    case Answer::Cancel:
        break;
    }
    m_count.close();
    m_ui->RzComboBoxLocation->setCurrentIndex(-1);
    return false;
}

void TFormEnterInventory::resume(const CountDraft &draft)
{
    m_count.resume(draft);
    m_ui->cboSearchOrder->setCurrentIndex(static_cast<int>(draft.order));
    m_ui->RzCheckBoxIncludeZeroCountItems->setChecked(draft.zeroCounts == ZeroCounts::Included);
    m_ui->wwDBDateTimePickerInventoryDate->setDate(draft.date);
}

void TFormEnterInventory::readAgain()
{
    QString news;
    {
        const WaitCursor hourglass;
        news = m_count.readAgain();
    }
    showList();
    if (!news.isEmpty())
        context().prompts.inform(news);
}

ZeroCounts TFormEnterInventory::zeroCountsWanted() const
{
    return m_ui->RzCheckBoxIncludeZeroCountItems->isChecked() ? ZeroCounts::Included : ZeroCounts::Excluded;
}

void TFormEnterInventory::zeroCountsChosen()
{
    if (!mayLoseCounts(
            tr("If you change items to be included the edits you \r\nhave made to the inventory list will "
               "be lost.\r\nProceed with changing the items?"))) {
        m_ui->RzCheckBoxIncludeZeroCountItems->toggle();
        return;
    }
    if (!m_count.isOpen())
        return;
    closeList();
    const auto shown = qScopeGuard([this] { showList(); });
    const WaitCursor hourglass;
    m_count.setZeroCounts(zeroCountsWanted());
}

// --- order and keys ---------------------------------------------------------------------------------------------

void TFormEnterInventory::sortBy(CountList::Order order)
{
    m_count.sortBy(order);
    m_ui->cboSearchOrder->setCurrentIndex(static_cast<int>(order));
    m_ui->wwDBGridInventory->listChanged();
}

void TFormEnterInventory::blindChosen()
{
    Choices choices;
    choices.set(Settings::BlindCount, m_ui->chkBlind->isChecked());
    m_last.keep(choices);
    showBooks();
    showStatus();
}

// There is nothing left to be swayed by when the usage has been written.
bool TFormEnterInventory::hidesBooks() const { return m_ui->chkBlind->isChecked() && !m_count.isCalculated(); }

void TFormEnterInventory::showBooks()
{
    m_ui->wwDBGridInventory->setBlind(hidesBooks());
    m_ui->btnDifferences->setEnabled(m_count.isOpen() && !hidesBooks());
    m_ui->btnDifferences->setToolTip(hidesBooks() ? tr("Not while the count is blind") : QString());
}

bool TFormEnterInventory::takeKey(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter || focusWidget() != m_ui->wwIncrementalSearch1)
        return false;
    m_search->enter();
    return true;
}

// The arrow keys, the wheel and each letter of a name would open one location after the other.
bool TFormEnterInventory::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_ui->RzComboBoxLocation)
        return EntryScreen::eventFilter(watched, event);
    if (event->type() != QEvent::KeyPress)
        return event->type() == QEvent::Wheel;
    return locationKey(static_cast<QKeyEvent &>(*event));
}

bool TFormEnterInventory::locationKey(QKeyEvent &key)
{
    const bool arrow = key.key() == Qt::Key_Up || key.key() == Qt::Key_Down;
    const bool letter = isTyped(key) && key.key() != Qt::Key_Space;
    if (!arrow && !letter)
        return false;
    m_ui->RzComboBoxLocation->showPopup();
    if (letter)
        QCoreApplication::sendEvent(m_ui->RzComboBoxLocation->view(), &key);
    return true;
}

bool TFormEnterInventory::focusColumn(const QString &)
{
    m_ui->wwDBGridInventory->setFocus();
    return true;
}

// --- counting ---------------------------------------------------------------------------------------------------

void TFormEnterInventory::countItem(int item, std::optional<double> quantity)
{
    if (quantity) {
        const std::optional<QString> question = m_count.questionOf(item, *quantity);
        if (question && !context().prompts.confirm(Question::Warning, *question))
            throw SilentAbort(Fields::Quantity);
        m_count.count(item, *quantity);
    } else {
        m_count.forgetCount(item);
    }
    m_ui->wwDBGridInventory->itemChanged(item);
    showStatus();
}

void TFormEnterInventory::dateChosen()
{
    m_count.setDate(m_ui->wwDBDateTimePickerInventoryDate->date());
    showReady();
    showStatus();
}

void TFormEnterInventory::askAboutDate(QDate date, QDate before)
{
    DatePicker *picker = m_ui->wwDBDateTimePickerInventoryDate;
    if (picker->date() != date || context().prompts.confirm(Question::Warning, distantDateQuestion(date)))
        return;
    picker->setDate(before);
    picker->setFocus();
    picker->selectAll();
}

bool TFormEnterInventory::hasCountableDate() const
{
    return StockCount::isCountable(m_ui->wwDBDateTimePickerInventoryDate->date(), context().data.today());
}

bool TFormEnterInventory::isReady() const
{
    return !m_ui->RzComboBoxLocation->currentText().isEmpty() && hasCountableDate();
}

void TFormEnterInventory::showReady() { m_ui->BitBtnOK->setEnabled(isReady()); }

void TFormEnterInventory::showList()
{
    m_ui->wwDBGridInventory->listChanged();
    m_ui->wwDBGridInventory->setHint(hintText());
    showStatus();
}

void TFormEnterInventory::showStatus(const QString &said)
{
    showBooks();
    m_ui->lblStatus->setText(said.isEmpty() ? statusText() + cutFiguresText() : said);
    m_ui->lblStatus->setToolTip(m_count.draftFailure());
}

// Of the row with the cursor, what its columns are too narrow for.
QString TFormEnterInventory::cutFiguresText() const
{
    const QString figures = m_ui->wwDBGridInventory->cutFigures(m_ui->wwDBGridInventory->currentIndex().row());
    return figures.isEmpty() ? QString() : u"   "_s + figures;
}

QString TFormEnterInventory::statusText() const
{
    if (!m_count.isOpen())
        return {};
    if (!hasCountableDate())
        return tr("The date is a year back or more: choose a later one");
    const CountList::Totals totals = m_count.list().totals();
    const QString counted = QString::number(totals.counted);
    const QString size = QString::number(m_count.list().size());
    const QString text = hidesBooks()
        ? tr("%1 of %2 counted").arg(counted, size)
        : tr("%1 of %2 counted, %3 differ, value of the difference %4")
              .arg(counted, size, QString::number(totals.differing), currencyText(totals.value));
    return m_count.draftFailure().isEmpty() ? text : text + tr(" - not kept on this machine");
}

QString TFormEnterInventory::hintText() const
{
    if (m_count.isOpen())
        return tr("There is no stock at this location. \"Include Zero Count Items\" shows what could be there.");
    if (!m_ui->RzComboBoxLocation->currentText().isEmpty())
        return tr("This location can be counted when its transactions have been posted.");
    QStringList kept;
    for (const CountLocation &location : m_count.locationsWithDraft())
        kept.append(location.name);
    const QString choose = tr("Choose the location that is counted.");
    return kept.isEmpty() ? choose
                          : choose + u"\n\n"_s + tr("Counted and not calculated yet: %1").arg(kept.join(u", "_s));
}

void TFormEnterInventory::btnDifferencesClick()
{
    m_ui->wwDBGridInventory->commitEntry();
    TfrmCountDifferences differences(context(), m_count.list(), this);
    if (differences.exec() == QDialog::Accepted)
        m_ui->wwDBGridInventory->countItem(m_count.list().rowOfItem(differences.chosenItem()));
}

// --- the end ----------------------------------------------------------------------------------------------------

void TFormEnterInventory::bitBtnOKClick()
{
    m_ui->wwDBGridInventory->commitEntry();
    switch (context().prompts.yesNoCancel(calculationQuestion(), Tallymere::caption(Question::Confirm))) {
    case Answer::Yes:
        return m_ui->ActionCalculateConsumption->trigger();
    case Answer::No:
        close();
        return;
    case Answer::Cancel:
        return showStatus();
    }
}

QString TFormEnterInventory::calculationQuestion() const
{
    const QString question =
        tr("Proceed with calculating the item usage based\r\nupon the quantities that have been entered?");
    const int left = m_count.list().notCounted();
    if (left == 0)
        return question;
    return question + u"\n\n"_s
        + plural(left, tr("%n item has not been counted. It keeps its recorded quantity."),
                 tr("%n items have not been counted. They keep their recorded quantities."));
}

// Done, it can be done again for another date or location. A location that was refused is tried once more.
void TFormEnterInventory::actionCalculateConsumptionExecute()
{
    if (!m_count.isOpen())
        return locationChosen(m_ui->RzComboBoxLocation->currentIndex());
    m_ui->BitBtnOK->setEnabled(false);
    StockCount::Calculation calculation;
    try {
        const WaitCursor hourglass;
        calculation = m_count.calculate();
    } catch (const SilentAbort &) {
        showReady();
        throw;
    } catch (const Engine::EngineError &error) {
        // Nothing has been written then. Where a connection was lost too late to tell, the next try names the usage.
        m_ui->BitBtnOK->setEnabled(error.isHeldByOthers() || error.code() == Engine::ErrorCode::ConnectionLost);
        throw;
    }
    if (calculation.readsAgain) {
        showReady();
        return readAgain();
    }
    m_ui->wwDBGridInventory->listChanged();
    refreshOpenList(DocumentKinds::usage().list.screen);
    showStatus(calculation.usage
                   ? plural(calculation.usage->lines,
                            tr("Usage %1 has been written, %n line. Post it when it has been looked over."),
                            tr("Usage %1 has been written, %n lines. Post it when it has been looked over."))
                         .arg(calculation.usage->number)
                   : tr("No item holds less than recorded: no usage has been written."));
}

EntryScreen::Pending TFormEnterInventory::pending() const
{
    return m_count.hasEdits() || m_ui->wwDBGridInventory->hasEntry() ? Pending::Changes : Pending::Nothing;
}

void TFormEnterInventory::saveChanges()
{
    m_ui->wwDBGridInventory->commitEntry();
    m_count.requireDraft();
}

QString TFormEnterInventory::closingQuestion() const
{
    return tr("What you have entered has not been calculated.\n"
              "Do you want to keep it on this machine and go on later?");
}

} // namespace Tallymere
