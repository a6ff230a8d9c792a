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
#include "engine/values/userlocale.h"
#include "master/barcodes.h"
#include "master/screens/scanneditem.h"
#include "phonecount/networkaddresses.h"
#include "phonecount/screens/phonecountscreen.h"
#include "phonecount/stockcountdesk.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/screens/countdifferencesscreen.h"
#include "transactions/screens/countsearch.h"
#include "ui_enterinventory.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
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
         .sort = [this](CountList::Order order) { sortBy(order); },
         .isCode = [this](const QString &text) { return isItemCode(this->context(), text); },
         .scan = [this](const QString &code) { takeScan(code); }},
        guard());
    m_search = new CountSearch(
        *m_ui->wwIncrementalSearch1, *m_ui->lblNotFound, m_count.list(), *m_ui->wwDBGridInventory,
        {.ofBarcode =
             [this](const QString &code) { return itemOfBarcode(this->context().data.databaseTallymere(), code); },
         .nameOf =
             [this](const QString &code) { return nameOfCode(this->context().data.databaseTallymere(), code); }});
    fillLocations();
    connectControls();
    dateChosen();
    buildScreen();
    showList();
}

TFormEnterInventory::~TFormEnterInventory() { delete m_phones; } // which knows the count

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
    connect(m_search, &CountSearch::unknownCode, this,
            [this](const QString &code) { guard().run([&] { takeScan(code); }); });
    connect(m_ui->wwDBGridInventory, &CountGrid::itemShown, this, [this] {
        m_overtaken.reset();
        showStatus();
    });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, m_search, &CountSearch::start);
    connectGuarded(m_ui->chkBlind, &QCheckBox::clicked, this, &TFormEnterInventory::blindChosen);
    connectGuarded(m_ui->btnDifferences, &QPushButton::clicked, this, &TFormEnterInventory::btnDifferencesClick);
    connectGuarded(m_ui->btnPhone, &QPushButton::clicked, this, &TFormEnterInventory::btnPhoneClick);
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

void TFormEnterInventory::takeScan(const QString &code)
{
    const std::optional<int> item = scannedItem(context(), this, code, m_count.location());
    const int row = item ? m_count.list().rowOfItem(*item) : -1;
    if (row >= 0) {
        m_search->forgetUnknown();
        m_ui->wwDBGridInventory->countItem(row);
    } else {
        m_search->refuseCode(code);
    }
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
    stopPhones();
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
    else if (m_count.isOpen() && m_count.list().size() > 0)
        m_ui->wwDBGridInventory->setFocus(); // what is typed next are quantities
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
            .arg(Engine::userLocale().locale.toString(draft->saved, QLocale::ShortFormat));
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
        if (m_phones)
            m_phones->listChanged();
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
    m_ui->btnPhone->setEnabled(m_count.isOpen() && m_count.list().size() > 0);
    m_ui->btnDifferences->setToolTip(hidesBooks() ? tr("Not while the count is blind") : QString());
}

bool TFormEnterInventory::takeKey(QKeyEvent *event)
{
    const bool enter = isEnter(*event);
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
        const std::optional<QString> question = m_count.questionOf(item, *quantity, hidesBooks());
        if (question && !context().prompts.confirm(Question::Warning, *question))
            throw SilentAbort(Fields::Quantity);
        confirmOverPhone(item, *quantity);
        m_count.count(item, *quantity);
    } else {
        m_count.forgetCount(item);
    }
    m_ui->wwDBGridInventory->itemChanged(item);
    showStatus();
}

// A number that has come since the cursor came to the item may not have been seen.
void TFormEnterInventory::confirmOverPhone(int item, double quantity)
{
    const CountRow &row = m_count.list().row(item);
    if (std::exchange(m_overtaken, std::nullopt) != row.itemId || row.typed == quantity)
        return;
    const QString question = tr("%1 has counted %2 of this item meanwhile.\nDo you want to put %3 in its place?")
                                 .arg(row.mark.by, quantityText(row.counted()), quantityText(quantity));
    if (!context().prompts.confirm(Question::Warning, question))
        throw SilentAbort(Fields::Quantity);
}

// --- phones -----------------------------------------------------------------------------------------------------

void TFormEnterInventory::btnPhoneClick()
{
    m_ui->wwDBGridInventory->commitEntry();
    if (!m_phones) {
        const QString place = m_ui->RzComboBoxLocation->itemText(m_chosen);
        auto desk = std::make_unique<StockCountDesk>(
            context().data.databaseTallymere(), m_count, place.section(u'[', 0, -2).trimmed(),
            StockCountDesk::Screen{.isBlind = [this] { return hidesBooks(); },
                                   .isBusy = [this] { return m_calculating; },
                                   .taken = [this](int item) { countedByPhone(item); }});
        const QString name = CountDrafts::nameOf(context().data.databaseTallymere()) + u'\n' + place;
        m_phones = new TfrmPhoneCount(context(), std::move(desk), name, networkAddresses(), this);
        connect(m_phones, &TfrmPhoneCount::changed, this, [this] { showStatus(); });
        connect(m_phones, &TfrmPhoneCount::stopped, this, &TFormEnterInventory::stopPhones);
    }
    m_phones->show();
    bringToFront(*m_phones);
    showStatus();
}

void TFormEnterInventory::countedByPhone(int item)
{
    if (item == m_ui->wwDBGridInventory->currentItem())
        m_overtaken = m_count.list().row(item).itemId;
    m_ui->wwDBGridInventory->itemChanged(item);
}

void TFormEnterInventory::stopPhones()
{
    if (!m_phones)
        return;
    TfrmPhoneCount *ending = m_phones;
    m_phones.clear();
    ending->hide();
    ending->end();
    ending->deleteLater();
    showStatus();
}

QString TFormEnterInventory::phonesText() const
{
    if (!m_phones)
        return {};
    const PhoneService &service = m_phones->service();
    return u"   "_s
        + tr("Phones: %1, numbers from them: %2")
              .arg(QString::number(service.phones().size()), QString::number(service.rows()));
}

// --- the date ---------------------------------------------------------------------------------------------------

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
    m_ui->lblStatus->setText(said.isEmpty() ? statusText() + phonesText() + cutFiguresText() : said);
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
    const QString counted = Engine::countText(totals.counted);
    const QString size = Engine::countText(m_count.list().size());
    const QString text = hidesBooks()
        ? tr("%1 of %2 counted").arg(counted, size)
        : tr("%1 of %2 counted, %3 differ, value of the difference %4")
              .arg(counted, size, Engine::countText(totals.differing), currencyText(totals.value));
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
    const QScopedValueRollback calculating(m_calculating, true); // of what the question tells
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
    const QString phones = m_phones
        ? u"\n\n"_s + tr("Phones count this location. What has not come from them yet will not be in the usage.")
        : QString();
    const int left = m_count.list().notCounted();
    if (left == 0)
        return question + phones;
    return question + phones + u"\n\n"_s
        + plural(left, tr("%n item has not been counted. It keeps its recorded quantity."),
                 tr("%n items have not been counted. They keep their recorded quantities."));
}

// Done, it can be done again for another date or location. A location that was refused is tried once more.
void TFormEnterInventory::actionCalculateConsumptionExecute()
{
    if (!m_count.isOpen())
        return locationChosen(m_ui->RzComboBoxLocation->currentIndex());
    m_ui->BitBtnOK->setEnabled(false);
    const QScopedValueRollback calculating(m_calculating, true);
    StockCount::Calculation calculation;
    try {
        const WaitCursor hourglass;
        calculation = m_count.calculate();
    } catch (const SilentAbort &) {
        showReady();
        throw;
    } catch (const Engine::EngineError &error) {
        // Nothing has been written then. Where a connection was lost too late to tell, the next try names the usage.
        m_ui->BitBtnOK->setEnabled(error.isHeldByOthers() || error.isConnectionLost());
        throw;
    }
    if (calculation.readsAgain) {
        showReady();
        return readAgain();
    }
    if (m_count.isCalculated())
        stopPhones();
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
