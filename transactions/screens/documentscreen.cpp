#include "transactions/screens/documentscreen.h"

#include "base/ruleerror.h"
#include "controls/fields/lookuplists.h"
#include "controls/grids/figuresline.h"
#include "controls/grids/linegrid.h"
#include "controls/windows/icons.h"
#include "controls/windows/screenmetrics.h"
#include "controls/windows/statelabel.h"
#include "data/datamodule.h"
#include "data/fields.h"
#include "data/lookupsdatainv.h"
#include "master/screens/itemsearchinv.h"
#include "transactions/reversal.h"

#include <functional>
#include <QAction>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QToolButton>

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
} // namespace

DocumentScreen::DocumentScreen(ScreenContext &context, const DocumentKind &kind, QWidget *parent)
    : RecordScreen(context, parent)
    , m_entry(kind.entry.make(context.data.databaseTallymere(), context.prompts))
{
    m_entry->open();
}

DocumentScreen::~DocumentScreen()
{
    // The tables close with the entry and would call for a caption that is no more.
    m_entry->header().disconnect(this);
}

void DocumentScreen::buildDocument(LineOptions options)
{
    setObjectName(m_entry->kind().entry.screen);
    resize(scaled(this, 840), scaled(this, 470));
    setLookupLists(*this, context().lookups, guard());
    QList<GridColumn> columns = m_entry->kind().entry.lineColumns;
    for (GridColumn &column : columns) {
        column.takesSurplus = column.field == descriptionField;
        if (!takesText(column.field))
            options.fixed << column.field;
    }
    const std::pair<QString, QString> ofStock[] = {{DocumentEntry::OnHand.toString(), tr("On hand")},
                                                   {DocumentEntry::Afterwards.toString(), tr("After")}};
    for (const auto &[field, title] : ofStock)
        columns.append(
            {.field = field, .title = title, .width = stockWidth, .alignment = Qt::AlignRight, .setOff = true});
    options.behind = {DocumentEntry::OnHand.toString(), DocumentEntry::Afterwards.toString()};
    m_grid = findChild<LineGrid *>(u"DBGrid1"_s);
    m_posted = findChild<QLabel *>(u"lblPosted"_s);
    addOpenMark();
    binder().bind(m_entry->header());
    m_grid->setLines(m_entry->lines(), columns,
                     {.begin = [this] { beginLine(); },
                      .append = [this] { m_entry->newLine(); },
                      .remove = [this] { m_entry->removeLine(); },
                      .enter = [this](const QString &field, const QString &text) { enterCell(field, text); },
                      .columnSelected = [this](const QString &field) { m_entry->setLineColumn(field); },
                      .search = [this](const QString &, const QString &typed) { return searchItem(typed); },
                      .searchColumns = {numberColumn.toString()},
                      .complete = [this](const QString &field,
                                         const QString &typed) { return completeDescription(field, typed); }},
                     guard(), options);
    if (auto *figures = findChild<FiguresLine *>())
        figures->follow(*m_grid);
    m_grid->setContextMenuPolicy(Qt::ActionsContextMenu);
    addPopupCommand(u"mnuNewLine"_s, tr("New"), QKeySequence(Qt::CTRL | Qt::Key_Insert), &LineGrid::appendLine);
    addPopupCommand(u"mnuDeleteLine"_s, tr("Delete"), QKeySequence(Qt::CTRL | Qt::Key_Delete),
                    &LineGrid::removeLine);
    addItemCard();
    addNewLineButton();
    connect(&m_entry->header(), &Engine::DataSet::fieldChanged, this, &DocumentScreen::showHeader);
    connect(&m_entry->header(), &Engine::DataSet::currentChanged, this, &DocumentScreen::showHeader);
    connect(&m_entry->header(), &Engine::DataSet::stateChanged, this, &DocumentScreen::showHeader);
    connect(&binder(), &FieldBinder::readOnlyChanged, this, &DocumentScreen::showReadOnly);
    buildScreen();
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

// For the mouse, and for programs that press buttons for the user. It leaves the keys where they are.
void DocumentScreen::addNewLineButton()
{
    m_newLine = new QToolButton(this);
    m_newLine->setObjectName(u"btnNewLine"_s);
    m_newLine->setText(tr("New Line"));
    m_newLine->setToolTip(tr("Appends a line (Page Down)"));
    m_newLine->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_newLine->setFocusPolicy(Qt::NoFocus);
    setGlyph(*m_newLine, Glyph::New);
    connect(m_newLine, &QToolButton::clicked, m_popup.constFirst(), &QAction::trigger);
    QWidget *figures = findChild<FiguresLine *>();
    const QList<QBoxLayout *> rows = findChildren<QBoxLayout *>();
    for (QBoxLayout *row : rows) {
        if (const int place = row->indexOf(figures); place >= 0)
            row->insertWidget(place, m_newLine);
    }
}

// What is looked up or calculated takes a text only where that chooses the item.
bool DocumentScreen::takesText(const QString &column) const
{
    const bool isStored = std::as_const(*m_entry).lines().field(column).kind == Engine::FieldKind::Data;
    return isStored || column == numberColumn || column == descriptionField;
}

void DocumentScreen::addPopupCommand(const QString &name, const QString &caption, const QKeySequence &shortcut,
                                     void (LineGrid::*run)())
{
    auto *action = new QAction(caption, m_grid);
    action->setObjectName(name);
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_grid->addAction(action);
    m_popup.append(action);
    connect(action, &QAction::triggered, this,
            [this, run] { guard().runWhenFree([this, run] { std::invoke(run, m_grid); }); });
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
    m_grid->viewport()->update(); // what is on hand follows the location
    showCaption();
}

// Others may have posted meanwhile.
void DocumentScreen::changeEvent(QEvent *event)
{
    RecordScreen::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow() || !m_grid)
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

void DocumentScreen::beginLine()
{
    if (!m_entry->lines().isEditing())
        m_entry->lines().edit();
}

void DocumentScreen::enterCell(const QString &field, const QString &text)
{
    beginLine();
    if (field == numberColumn)
        m_entry->chooseItemByNumber(text.trimmed());
    else if (field == descriptionField)
        chooseItemByDescription(text.trimmed());
    else
        m_entry->lines().setText(field, text);
}

void DocumentScreen::chooseItemByDescription(const QString &text)
{
    if (text.isEmpty()) {
        m_entry->chooseItemByNumber({});
        return;
    }
    const QString column = descriptionField.toString();
    const auto item = context().lookups.tblItem().find(column, {text}, LocateOption::CaseInsensitive);
    if (!item)
        throw RuleError(tr("Item not found...\nPress Esc or enter a different item no"), column);
    m_entry->setLineColumn(column);
    m_entry->chooseItem(static_cast<int>(item->key.first()));
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
