#include "transactions/screens/documentscreen.h"

#include "base/settingsstore.h"
#include "controls/fields/lookuplists.h"
#include "controls/grids/figuresline.h"
#include "controls/grids/linegrid.h"
#include "controls/screens/recordopener.h"
#include "controls/windows/icons.h"
#include "controls/windows/screenmetrics.h"
#include "controls/windows/statelabel.h"
#include "controls/windows/sumlabel.h"
#include "data/datamodule.h"
#include "data/fields.h"
#include "data/lookupsdatainv.h"
#include "master/screens/itemsearchinv.h"
#include "master/screens/scanneditem.h"
#include "transactions/documents/begundocument.h"
#include "transactions/entry/leftdocuments.h"
#include "transactions/entry/reversal.h"
#include "transactions/screens/documentscreens.h"
#include "transactions/screens/pasterowsscreen.h"

#include <functional>
#include <QAction>
#include <QBoxLayout>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>
#include <utility>

using namespace Qt::StringLiterals;
using Engine::LocateOption;
using Engine::LocateOptions;

namespace Tallymere {

namespace {
constexpr QStringView numberColumn = Fields::ItemNo;
constexpr QStringView descriptionField = Fields::ItemDescription; // of an item, and of a line by lookup
constexpr int rowsAtFirst = 5;
constexpr int columnsAtFirst = 5; // further ones take the room of the one with surplus,
constexpr int stockWidth = 80; // but for the two that tell the stock

QStringList neededTables(const DocumentKind &kind)
{
    QStringList tables = kind.keyTables();
    for (const DocumentKind::NumberFor &other : kind.files.numbers)
        tables << other.table;
    return tables << u"Warehse"_s;
}

} // namespace

DocumentScreen::DocumentScreen(ScreenContext &context, const DocumentKind &kind, QWidget *parent)
    : RecordScreen(context, parent)
    , m_opening(context.data.databaseTallymere(), neededTables(kind))
    , m_askedBegun(BegunDocument::askBegun(context.data.databaseTallymere(), kind))
    , m_entry(kind.entry.make(context.data.databaseTallymere(), context.prompts))
{
    m_entry->open();
    m_entry->header().moveToNone();
}

DocumentScreen::~DocumentScreen()
{
    // The tables close with the entry and would call for a caption that is no more.
    m_entry->header().disconnect(this);
    if (m_grid) {
        m_grid->model()->disconnect(this);
        m_grid->selectionModel()->disconnect(this);
    }
}

void DocumentScreen::buildDocument(LineOptions options)
{
    setObjectName(m_entry->kind().entry.screen);
    resize(scaled(this, 840), scaled(this, 470));
    setLookupLists(*this, context().lookups, guard());
    const QList<GridColumn> columns = gridColumns(options);
    options.passedNow = [this](const QString &column) {
        return m_passesKnown->isChecked() && followsFromItem(column);
    };
    options.offer = [this](const QString &column) { return offerFor(column); };
    m_grid = findChild<LineGrid *>(u"DBGrid1"_s);
    m_posted = findChild<QLabel *>(u"lblPosted"_s);
    addOpenMark();
    binder().bind(m_entry->header());
    m_grid->setLines(
        m_entry->lines(), columns,
        {.begin = [this] { m_entry->lines().edit(); },
         .append = [this] { m_entry->newLine(); },
         .remove = [this] { m_entry->removeLine(); },
         .enter = [this](const QString &field, const QString &text) { enterCell(field, text); },
         .columnSelected = [this](const QString &field) { m_entry->setLineColumn(field); },
         .search = [this](const QString &, const QString &typed) { return searchItem(typed); },
         .searchColumns = {numberColumn.toString()},
         .isCode = [this](const QString &text) { return isItemCode(this->context(), text); },
         .scan = [this](const QString &field, const QString &code) { takeScan(field == numberColumn, code); },
         .complete = [this](const QString &field,
                            const QString &typed) { return completeDescription(field, typed); }},
        guard(), options);
    addPopupCommands();
    addItemCard();
    addLineButtons();
    addBottomRow();
    connect(&m_entry->header(), &Engine::DataSet::fieldChanged, this, &DocumentScreen::showHeader);
    connect(&m_entry->header(), &Engine::DataSet::currentChanged, this, &DocumentScreen::showHeader);
    connect(&m_entry->header(), &Engine::DataSet::stateChanged, this, &DocumentScreen::showHeader);
    connect(&binder(), &FieldBinder::readOnlyChanged, this, &DocumentScreen::showReadOnly);
    buildScreen();
}

// The kind's own, and behind them what is worked out from those and what is on hand.
QList<GridColumn> DocumentScreen::gridColumns(LineOptions &options) const
{
    QList<GridColumn> columns = m_entry->kind().entry.lineColumns;
    for (GridColumn &column : columns) {
        column.takesSurplus = column.field == descriptionField;
        if (!m_entry->takesText(column.field))
            options.fixed << column.field;
    }
    QList<GridColumn> behind = m_entry->kind().entry.toldColumns;
    const std::pair<QString, QString> ofStock[] = {{DocumentEntry::OnHand, tr("On hand")},
                                                   {DocumentEntry::Afterwards, tr("After")}};
    for (const auto &[field, title] : ofStock)
        behind.append({.field = field,
                       .title = title,
                       .width = stockWidth,
                       .alignment = Qt::AlignRight,
                       .setOff = true,
                       .warnsBelowZero = true});
    for (const GridColumn &column : std::as_const(behind))
        options.behind << column.field;
    return columns + behind;
}

// In the place of the mark of posted documents.
void DocumentScreen::addOpenMark()
{
    m_open = new StateLabel(this, StateLabel::State::Notice);
    m_open->setObjectName(u"lblOpen"_s);
    m_open->setText(tr("Open"));
    const QList<QBoxLayout *> rows = findChildren<QBoxLayout *>();
    for (QBoxLayout *row : rows) {
        if (const int place = row->indexOf(m_posted); place >= 0)
            row->insertWidget(place + 1, m_open);
    }
}

// For the mouse, and for programs that press buttons for the user. They leave the keys where they are.
void DocumentScreen::addLineButtons()
{
    m_newLine =
        addLineButton(u"btnNewLine"_s, tr("New Line"), tr("Appends a line (Page Down)"), m_popup.constFirst());
    setGlyph(*m_newLine, Glyph::New);
    m_pasteButton = addLineButton(u"btnPasteRows"_s, tr("Paste Rows..."),
                                  tr("Takes rows of a spreadsheet from the clipboard (Ctrl+Shift+V)"), m_paste);
    setGlyph(*m_pasteButton, Glyph::Copy);
}

QToolButton *DocumentScreen::addLineButton(const QString &name, const QString &text, const QString &toolTip,
                                           QAction *action)
{
    auto *button = new QToolButton(this);
    button->setObjectName(name);
    button->setText(text);
    button->setToolTip(toolTip);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QToolButton::clicked, action, &QAction::trigger);
    QWidget *figures = findChild<FiguresLine *>();
    const QList<QBoxLayout *> rows = findChildren<QBoxLayout *>();
    for (QBoxLayout *row : rows) {
        if (const int place = row->indexOf(figures); place >= 0)
            row->insertWidget(place, button);
    }
    return button;
}

// The text of a line that its item brings along, or that it may do without.
bool DocumentScreen::followsFromItem(const QString &column) const
{
    const DocumentKind &kind = m_entry->kind();
    const bool isEntered = column == numberColumn || column == kind.entry.lineColumns.constFirst().field
        || kind.files.requiredColumns.contains(column);
    return !isEntered && m_entry->lines().integer(Fields::ItemID) != 0;
}

std::optional<LineOffer> DocumentScreen::offerFor(const QString &column) const
{
    const std::optional<DocumentEntry::Offer> offer = m_entry->offerFor(column);
    if (!offer)
        return std::nullopt;
    const Engine::Field &field = std::as_const(*m_entry).lines().field(column);
    return LineOffer{field.editText(offer->value), tr("last %1").arg(field.displayText(offer->value))};
}

// --- what stands around the lines -------------------------------------------------------------------------------

void DocumentScreen::addPopupCommands()
{
    m_grid->setContextMenuPolicy(Qt::ActionsContextMenu);
    setGlyph(*addPopupCommand(u"mnuNewLine"_s, tr("New"), QKeySequence(Qt::CTRL | Qt::Key_Insert),
                              [this] { m_grid->appendLine(); }),
             Glyph::New);
    setGlyph(*addPopupCommand(u"mnuDeleteLine"_s, tr("Delete"), QKeySequence(Qt::CTRL | Qt::Key_Delete),
                              [this] { m_grid->removeLine(); }),
             Glyph::Delete);
    m_undo = addPopupCommand(u"mnuUndoDelete"_s, tr("Undo Delete"), QKeySequence(Qt::CTRL | Qt::Key_Z),
                             [this] { putLineBack(); });
    setGlyph(*m_undo, Glyph::Reverse);
    addPasteRows();
    addPassesKnown();
}

QAction *DocumentScreen::addPopupCommand(const QString &name, const QString &caption, const QKeySequence &shortcut,
                                         const std::function<void()> &run)
{
    auto *action = new QAction(caption, m_grid);
    action->setObjectName(name);
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_grid->addAction(action);
    m_popup.append(action);
    connect(action, &QAction::triggered, this, [this, run] { guard().runWhenFree(run); });
    return action;
}

// Reached from the fields as well. In the lines, what is copied from a spreadsheet is known by its several cells; a cell
// being typed into takes the clipboard as any box does.
void DocumentScreen::addPasteRows()
{
    m_paste = addPopupCommand(u"mnuPasteRows"_s, tr("Paste Rows..."),
                              QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_V), [this] { pasteRows(); });
    setGlyph(*m_paste, Glyph::Copy);
    m_paste->setShortcutContext(Qt::WindowShortcut);
    auto *cells = new QShortcut(QKeySequence::Paste, m_grid);
    cells->setContext(Qt::WidgetWithChildrenShortcut);
    connect(cells, &QShortcut::activated, this, [this] {
        if (m_paste->isEnabled() && PastedRows::isSeveralCells(QGuiApplication::clipboard()->text()))
            m_paste->trigger();
    });
}

// The user's choice, the same in all documents.
void DocumentScreen::addPassesKnown()
{
    m_passesKnown = new QAction(tr("Enter Passes Over What Is Known"), m_grid);
    m_passesKnown->setObjectName(u"mnuPassesKnown"_s);
    m_passesKnown->setCheckable(true);
    SettingsStore *settings = context().settings;
    m_passesKnown->setChecked(settings && settings->value(Settings::documentEntry, Settings::PassesKnown));
    m_grid->addAction(m_passesKnown);
    connect(m_passesKnown, &QAction::toggled, this, [settings](bool passes) {
        if (settings)
            settings->setValue(Settings::documentEntry, Settings::PassesKnown, passes);
    });
}

// In the row of the buttons: what the lines come to, and the way to take back what is in the books.
void DocumentScreen::addBottomRow()
{
    m_figures = findChild<FiguresLine *>();
    if (m_figures)
        m_figures->follow(*m_grid);
    auto *ok = findChild<QPushButton *>(u"btnOK"_s);
    auto *row = qobject_cast<QBoxLayout *>(ok->parentWidget()->layout());
    m_total = new SumLabel(u"lblLinesTotal"_s, ok->parentWidget());
    m_reverse = new QPushButton(tr("Rever&se..."), ok->parentWidget());
    m_reverse->setObjectName(u"btnReverse"_s);
    connectGuarded(m_reverse, &QPushButton::clicked, this, &DocumentScreen::btnReverseClick);
    row->insertWidget(row->indexOf(ok), m_reverse);
    row->insertWidget(row->indexOf(m_reverse), m_total);
    setTabOrder(m_grid, m_reverse);
    for (const auto changed : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(m_grid->model(), changed, this, &DocumentScreen::tellLater);
    connect(m_grid->model(), &QAbstractItemModel::dataChanged, this, &DocumentScreen::tellLater);
    connect(m_grid->selectionModel(), &QItemSelectionModel::currentChanged, this, &DocumentScreen::tellLater);
}

// A line says that it is another one before the document has drawn its conclusions.
void DocumentScreen::tellLater()
{
    if (std::exchange(m_tellsLater, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_tellsLater = false;
            showTold();
        },
        Qt::QueuedConnection);
}

// What cannot be read is told where the lines are.
void DocumentScreen::showTold()
{
    QString total;
    QString said;
    QString warned;
    const std::exception_ptr failure = Guard::attempt([&] {
        total = m_entry->totalText();
        said = note();
        warned = said.isEmpty() ? warning() : QString();
    });
    if (failure)
        Guard::trace(failure);
    m_total->setSum(tr("Total"), total);
    m_undo->setEnabled(!m_grid->isReadOnly() && !m_entry->takenOut().isEmpty());
    if (m_figures)
        m_figures->setNote(said + warned, warned.isEmpty() ? FiguresLine::Note::Plain : FiguresLine::Note::Warning);
}

QString DocumentScreen::note() const
{
    const QModelIndex cell = m_grid->currentIndex();
    const QString column = cell.isValid() ? m_grid->columns()[cell.column()].field : QString();
    if (const std::optional<DocumentEntry::Offer> offer = m_entry->offerFor(column))
        return tr("Enter takes it. %1").arg(offer->origin); // what is cut off where there is little room comes last
    const QString taken = m_entry->takenOut();
    return taken.isEmpty() ? QString() : tr("Ctrl+Z puts back: %1").arg(taken);
}

// What its column of the stock says in a colour as well.
QString DocumentScreen::warning() const
{
    const Engine::Table &lines = std::as_const(*m_entry).lines();
    if (m_entry->isPosted() || !m_grid->currentIndex().isValid()
        || lines.value(DocumentEntry::Afterwards).toDouble() >= 0)
        return {};
    return tr("%1 goes below zero at this location").arg(lines.text(Fields::ItemNo));
}

void DocumentScreen::putLineBack()
{
    m_grid->commitEntry();
    m_entry->putBack();
}

// What is being entered comes first.
void DocumentScreen::pasteRows()
{
    binder().commit();
    m_grid->commitEntry();
    m_entry->lines().checkBrowseMode();
    std::optional<PastedRows> rows;
    {
        const WaitCursor hourglass;
        rows.emplace(*m_entry, context().prompts, QGuiApplication::clipboard()->text());
    }
    const auto isStored = [this] { return std::as_const(*m_entry).lines().recordCount(); };
    const int before = isStored();
    const QString place =
        context()
            .lookups.tblWarehse()
            .lookUp(Fields::WarehouseID, {m_entry->header().value(Fields::WarehouseID)}, Fields::WarehouseName)
            .toText();
    TfrmPasteRows dialog(context(), *rows, m_entry->kind(), place, this);
    if (dialog.exec() != QDialog::Accepted || isStored() == before)
        return rows->drop();
    m_entry->lines().moveTo(before);
    m_grid->setFocus();
}

void DocumentScreen::btnReverseClick()
{
    if (!m_opener)
        m_opener = new RecordOpener(context(), recordScreens(m_entry->kind()), this);
    openReversal(*m_opener, m_entry->key());
}

void DocumentScreen::openReversal(RecordOpener &opener, int key)
{
    const WaitCursor hourglass;
    std::unique_ptr<RecordScreen> screen = opener.make();
    static_cast<DocumentScreen &>(*screen).newReversal(key);
    screen.release()->show();
}

// Of posted documents as well.
void DocumentScreen::addItemCard()
{
    if (!context().showItem)
        return;
    auto *action = new QAction(tr("Item Card"), m_grid);
    action->setObjectName(u"mnuItemCard"_s);
    action->setShortcut(itemCardKey);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    setGlyph(*action, Glyph::ItemCard);
    m_grid->addAction(action);
    connectGuarded(action, &QAction::triggered, this, [](DocumentScreen *self) {
        if (const int item = std::as_const(*self->m_entry).lines().integer(Fields::ItemID); item > 0)
            self->context().showItem(item);
    });
}

void DocumentScreen::newRecord()
{
    if (!takeUpLeft(*m_entry, context().prompts, std::exchange(m_askedBegun, {})))
        m_entry->newDocument();
    showHeader();
}

bool DocumentScreen::openRecord(int key)
{
    const bool found = m_entry->openDocument(key);
    showHeader();
    return found;
}

void DocumentScreen::newFilled(const std::function<void(DocumentEntry &)> &begin)
{
    begin(*m_entry);
    showHeader();
}

void DocumentScreen::newReversal(int key)
{
    newFilled([key](DocumentEntry &entry) { beginReversal(entry, key); });
}

std::optional<int> DocumentScreen::storedKey() const
{
    const bool isNew = m_entry->header().state() == Engine::TableState::Insert;
    return isNew ? std::nullopt : std::optional(m_entry->key());
}

void DocumentScreen::showHeader()
{
    const bool posted = m_entry->isPosted();
    m_posted->setVisible(posted);
    m_open->setVisible(!posted);
    binder().setReadOnly(posted);
    m_reverse->setVisible(posted);
    for (const QStringView field : {DocumentEntry::OnHand, DocumentEntry::Afterwards})
        m_grid->setColumnShown(m_grid->columnOf(field.toString()),
                               !posted); // what is in the books changes nothing more
    tellLater();
    m_grid->viewport()->update(); // what is on hand follows the location
    showCaption();
}

// Others may have posted meanwhile.
void DocumentScreen::changeEvent(QEvent *event)
{
    RecordScreen::changeEvent(event);
    const bool isActivated = event->type() == QEvent::ActivationChange && isActiveWindow() && m_grid;
    if (!isActivated || !std::exchange(m_wasActive, true)) // what it opens with is fresh
        return;
    m_entry->refreshStock();
    m_grid->viewport()->update();
}

void DocumentScreen::showReadOnly(bool readOnly)
{
    m_grid->setReadOnly(readOnly);
    for (QAction *action : std::as_const(m_popup))
        action->setEnabled(!readOnly);
    m_newLine->setVisible(!readOnly);
    m_pasteButton->setVisible(!readOnly);
    tellLater();
}

void DocumentScreen::showLineOf(int itemId, double quantity)
{
    guard().run([&] {
        if (m_entry->goToLineOf(itemId, quantity))
            m_grid->showColumn(numberColumn.toString());
    });
}

void DocumentScreen::sizeForLines()
{
    resize(width() - m_grid->width() + m_grid->widthForColumns(columnsAtFirst) + 2 * scaled(this, stockWidth),
           height() - m_grid->height() + m_grid->heightForRows(rowsAtFirst));
}

// --- lines ------------------------------------------------------------------------------------------------------

void DocumentScreen::enterCell(const QString &field, const QString &text)
{
    m_entry->lines().edit();
    if (field == numberColumn)
        m_entry->chooseItemByNumber(text.trimmed());
    else if (field == descriptionField && !text.trimmed().isEmpty())
        m_entry->chooseItemByDescription(text.trimmed());
    else if (field == descriptionField)
        m_entry->chooseItemByNumber({});
    else
        m_entry->lines().setText(field, text);
}

QString DocumentScreen::completeDescription(const QString &field, const QString &typed) const
{
    if (field != descriptionField)
        return {};
    const LocateOptions options = LocateOptions(LocateOption::CaseInsensitive) | LocateOption::PartialKey;
    return context()
        .lookups.tblItem()
        .lookUp(descriptionField.toString(), {typed}, descriptionField, options)
        .toText();
}

bool DocumentScreen::searchItem(const QString &typed)
{
    const int itemId = TfrmItemSearchInv::choose(context(), this,
                                                 {.itemId = m_entry->lines().integer(Fields::ItemID),
                                                  .typed = typed,
                                                  .warehouseId = m_entry->header().integer(Fields::WarehouseID)});
    if (itemId == 0)
        return false;
    m_entry->setLineColumn(numberColumn.toString());
    m_entry->chooseItem(itemId);
    return true;
}

void DocumentScreen::takeScan(bool inItsColumn, const QString &code)
{
    const int warehouse = m_entry->header().integer(Fields::WarehouseID);
    if (const std::optional<int> item = scannedItem(context(), this, code, warehouse))
        m_entry->chooseScannedItem(*item, inItsColumn);
}

// --- saving, closing, keys --------------------------------------------------------------------------------------

EntryScreen::Pending DocumentScreen::pending() const
{
    if (m_grid->hasEntry())
        return Pending::Changes;
    switch (m_entry->closing()) {
    case DocumentEntry::Closing::Free:
        return Pending::Nothing;
    case DocumentEntry::Closing::Drop:
        return Pending::Untouched;
    case DocumentEntry::Closing::Ask:
        break;
    }
    return Pending::Changes;
}

void DocumentScreen::saveChanges()
{
    m_grid->commitEntry();
    m_entry->save();
}

void DocumentScreen::dropChanges()
{
    m_grid->dropEntry();
    m_entry->cancel();
}

std::optional<int> DocumentScreen::savedKey() const
{
    return m_entry->wasSaved() || m_entry->kind().entry.leadsListUnsaved ? std::optional(m_entry->key())
                                                                         : std::nullopt;
}

QString DocumentScreen::caption() const { return m_entry->caption(); }

QString DocumentScreen::closingQuestion() const { return m_entry->kind().entry.closingQuestion; }

// The caption of a new document does not tell it from another one.
QString DocumentScreen::recordName() const
{
    const QString number = m_entry->header().text(m_entry->kind().shownField());
    return caption().contains(number) ? caption() : tr("%1 '%2'").arg(caption(), number);
}

bool DocumentScreen::focusColumn(const QString &column)
{
    if (EntryScreen::focusColumn(column))
        return true;
    if (column == DocumentEntry::LineGrid) {
        m_grid->setFocus();
        return true;
    }
    return m_grid->showColumn(column);
}

bool DocumentScreen::takeKey(QKeyEvent *event)
{
    if (event->key() != Qt::Key_PageDown)
        return false;
    m_grid->enterAtFirstLine();
    return true;
}

} // namespace Tallymere
