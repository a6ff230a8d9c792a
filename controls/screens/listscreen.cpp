#include "controls/screens/listscreen.h"

#include "controls/grids/listsort.h"
#include "controls/grids/liststatus.h"
#include "controls/grids/windowmemory.h"
#include "controls/screens/besidework.h"
#include "controls/screens/keptfiltermenu.h"
#include "controls/screens/listoutput.h"
#include "controls/windows/filterchip.h"
#include "controls/windows/icons.h"
#include "controls/windows/menukeyboard.h"
#include "controls/windows/screenmetrics.h"
#include "controls/windows/windowplaces.h"
#include "data/fields.h"
#include "engine/records/table.h"
#include "engine/store/database.h"

#include <QAction>
#include <QActionGroup>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShowEvent>
#include <QStatusBar>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
constexpr int firstRows = 12; // that the screen shows when it opens
constexpr auto filterName = "mnuFilter"_L1;
constexpr auto copyName = "mnuCopyText"_L1;
constexpr auto ordersName = "mnuSortBy"_L1;
} // namespace

ListScreen::ListScreen(ScreenContext &context, QWidget *parent)
    : QMainWindow(parent)
    , m_context(context)
    , m_guard(context.prompts, {}, this)
{
    setAttribute(Qt::WA_DeleteOnClose);
}

void ListScreen::build(const ListDescription &description, Engine::DataSet &set,
                       const std::function<void()> &defaultCommand)
{
    m_data = &set;
    m_caption = description.caption;
    m_emptyHint = description.emptyHint;
    setObjectName(description.name);
    layOut();

    m_grid->setDataSet(set, description.columns, m_guard);
    set.onLongRead([this](const Engine::DataSet::ReadOver &read) {
        readBeside(this, tr("Reading the rows of the list"), m_data->database(), read);
    });
    m_grid->allowSelection();
    m_status = new ListStatus(*m_grid, *statusBar());
    m_output = new ListOutput(m_context, *this, *m_grid, *m_status);
    m_memory = new WindowMemory(*this, m_context.settings);
    auto *commands = new ListCommands(
        *m_grid, [this](const std::function<void()> &command) { runCommand(command); }, this);
    for (const ListMenu &menu : withItemCard(description.menus))
        commands->addTo(*menuBar()->addMenu(menu.caption), menu.commands);
    leaveMenuBarWithMenus(*menuBar());
    for (const ListButton &button : description.buttons)
        addButton(button);
    addFilterChip();
    addKeptFilters();
    commands->finish(command(copyName));
    addSorting();
    connect(m_grid, &ListGrid::chosen, this, [this, defaultCommand] { runCommand(defaultCommand); });
    m_grid->setFocus();
    showFilterMark();
}

// The buttons over the grid.
void ListScreen::layOut()
{
    auto *body = new QWidget(this);
    auto *layout = new QVBoxLayout(body);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_topPanel = new QFrame(body);
    m_topPanel->setObjectName(u"RzPanelTop"_s);
    m_topPanel->installEventFilter(this);
    m_buttons = new QHBoxLayout(m_topPanel);
    m_buttons->addStretch();
    m_grid = new ListGrid(body);
    m_grid->setObjectName(u"DBGrid1"_s);
    m_grid->setAccessibleName(m_caption);
    m_grid->setContextMenuPolicy(Qt::ActionsContextMenu);
    layout->addWidget(m_topPanel);
    layout->addWidget(m_grid, 1);
    setCentralWidget(body);
    setContextMenuPolicy(Qt::NoContextMenu);
}

// Lists whose rows are of an item lead to its card, from the menu before that of the help.
QList<ListMenu> ListScreen::withItemCard(QList<ListMenu> menus)
{
    const int item = m_data->fieldIndex(Fields::ItemID);
    if (item < 0 || menus.size() < 2 || !m_context.showItem)
        return menus;
    menus[menus.size() - 2].commands.append(
        {.name = u"mnuItemCard"_s,
         .caption = tr("Item Card"),
         .run = [this, item] { m_context.showItem(m_data->value(item).toInt()); },
         .glyph = Glyph::ItemCard,
         .available = [this, item] { return !m_data->isEmpty() && !m_data->value(item).isNull(); },
         .shortcut = itemCardKey,
         .popupCaption = tr("Item Card"),
         .separatorBefore = true});
    return menus;
}

// --- commands ---------------------------------------------------------------------------------------------------

void ListScreen::addButton(const ListButton &button)
{
    QAction *action = command(button.command);
    auto *shown = new QPushButton(button.caption, m_topPanel);
    shown->setObjectName(button.name);
    setGlyph(*shown, glyphOf(*action));
    shown->setEnabled(action->isEnabled());
    shown->setFocusPolicy(Qt::TabFocus); // a click leaves the keyboard to the rows
    connect(action, &QAction::enabledChanged, shown, &QWidget::setEnabled);
    connect(shown, &QPushButton::clicked, this, [this, shown, action] {
        if (!shown->hasFocus())
            m_grid->setFocus();
        action->trigger();
    });
    m_buttons->insertWidget(m_buttons->count() - 1, shown);
}

// By each column, for those who do not use the mouse: at the end of the menu that reads the list anew.
void ListScreen::addSorting()
{
    m_sort = new ListSort(*m_grid, m_guard);
    connect(m_sort, &ListSort::changed, this, &ListScreen::showChosenOrder);
    const QAction *refresh = command(u"mnuRefresh"_s);
    auto *view = refresh ? qobject_cast<QMenu *>(refresh->parent()) : nullptr;
    if (!view)
        return;
    if (const QAction *orders = command(ordersName)) {
        m_orders = orders->menu()->actions().constFirst()->actionGroup();
        m_ownOrder = m_orders->checkedAction();
        connect(m_orders, &QActionGroup::triggered, this, [this](QAction *order) { m_ownOrder = order; });
    }
    QMenu *columns =
        ListCommands::addSubMenu(*view, {.name = u"mnuSortByColumn"_s, .caption = tr("Sort by Column")});
    for (int column = 0; column < m_grid->columns().size(); ++column) {
        if (!m_sort->canSortBy(column))
            continue;
        auto *entry = new QAction(m_grid->columns()[column].title, columns);
        entry->setObjectName(u"mnuSortBy"_s + m_grid->columns()[column].field);
        entry->setCheckable(true);
        columns->addAction(entry);
        connect(entry, &QAction::triggered, m_sort, [this, column] { m_sort->sortBy(column); });
        const auto follow = [this, entry, column] { entry->setChecked(m_sort->column() == column); };
        connect(m_sort, &ListSort::changed, entry, follow);
        follow();
    }
}

// One of the list's own orders is checked only as long as nothing comes before it.
void ListScreen::showChosenOrder()
{
    if (!m_ownOrder)
        return;
    const bool own = m_data->sorting().field.isEmpty();
    m_orders->setExclusionPolicy(own ? QActionGroup::ExclusionPolicy::Exclusive
                                     : QActionGroup::ExclusionPolicy::ExclusiveOptional);
    m_ownOrder->setChecked(own);
}

void ListScreen::runCommand(const std::function<void()> &run)
{
    if (run)
        m_guard.runWhenFree(run);
    // A checkable entry has toggled itself; what counts is whether the filter is on.
    showFilterMark();
}

namespace {

// As setIndex() and setOrderBy() take it.
QString orderOf(const Engine::DataSet &set)
{
    if (const auto *table = qobject_cast<const Engine::TableReader *>(&set))
        return table->index();
    QStringList names;
    for (const Engine::OrderedField &field : set.orderedFields())
        names.append(field.name);
    return names.join(u';');
}

} // namespace

void ListScreen::print(const QString &report)
{
    m_context.printList(report, m_data->isFiltered() ? m_data->filter() : QString(), orderOf(*m_data));
}

QList<ListCommand> ListScreen::importCommands()
{
    std::function<void()> bringIn;
    std::function<void()> takeBack;
    std::function<void()> save;
    if (m_context.importFile)
        bringIn = [this] { importFile({}); };
    if (m_context.takeBackImport)
        takeBack = [this] {
            if (m_context.takeBackImport(m_importKind, this))
                refreshList();
        };
    if (m_context.saveForImport && m_context.chooseFileToSave)
        save = [this] { m_context.saveForImport(m_importKind, m_caption, this); };
    return {{.name = u"mnuImport"_s, .caption = tr("&Import..."), .run = bringIn, .separatorBefore = true},
            {.name = u"mnuTakeBackImport"_s, .caption = tr("Take &Back Import..."), .run = takeBack},
            {.name = u"mnuSaveForImport"_s, .caption = tr("Save &for an Import..."), .run = save}};
}

void ListScreen::importFile(const QString &file)
{
    if (m_context.importFile(m_importKind, file, this))
        refreshList();
}

namespace {

// The file that is dropped; empty where it is something else, or more than one.
QString droppedFile(const QDropEvent &event)
{
    const QList<QUrl> urls = event.mimeData()->urls();
    return urls.size() == 1 ? urls.constFirst().toLocalFile() : QString();
}

} // namespace

void ListScreen::dragEnterEvent(QDragEnterEvent *event)
{
    if (droppedFile(*event).isEmpty())
        return;
    event->setDropAction(Qt::CopyAction); // the file stays where it is
    event->accept();
}

// The program that the file comes from waits for the end of the drop, so the import begins after it.
void ListScreen::dropEvent(QDropEvent *event)
{
    const QString file = droppedFile(*event);
    if (file.isEmpty())
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    QMetaObject::invokeMethod(
        this, [this, file] { m_guard.runWhenFree([this, file] { importFile(file); }); }, Qt::QueuedConnection);
}

ListMenu ListScreen::fileMenu(const QString &report, const QString &importKind)
{
    m_importKind = importKind;
    setAcceptDrops(!importKind.isEmpty() && bool(m_context.importFile));
    ListMenu menu{tr("&File"), {}};
    std::function<void()> run;
    if (m_context.printList)
        run = [this, report] { print(report); };
    if (!report.isEmpty())
        menu.commands << ListCommand{
            .name = u"mnuPrint"_s, .caption = tr("&Print..."), .run = run, .glyph = Glyph::Print};
    std::function<void()> save;
    std::function<void()> saveSheet;
    if (m_context.chooseFileToSave) {
        save = [this] { m_output->saveCsv(m_caption); };
        saveSheet = [this] { m_output->saveXlsx(m_caption); };
    }
    menu.commands << ListCommand{.name = u"mnuSaveCsv"_s,
                                 .caption = tr("Save as CSV..."),
                                 .run = save,
                                 .glyph = Glyph::Save}
                  << ListCommand{.name = u"mnuSaveXlsx"_s, .caption = tr("Save as XLSX..."), .run = saveSheet};
    if (!importKind.isEmpty())
        menu.commands += importCommands();
    menu.commands << ListCommand{.name = copyName,
                                 .caption = tr("&Copy as Text"),
                                 .run = [this] { m_output->copyRows(); },
                                 .glyph = Glyph::Copy,
                                 .separatorBefore = true}
                  << ListCommand{.name = u"mnuExit"_s,
                                 .caption = tr("E&xit"),
                                 .run = [this] { close(); },
                                 .glyph = Glyph::Close,
                                 .separatorBefore = true};
    return menu;
}

ListCommand ListScreen::findCommand(std::function<void()> run) const
{
    return {.name = u"mnuFind"_s,
            .caption = tr("&Find..."),
            .run = std::move(run),
            .glyph = Glyph::Find,
            .shortcut = QKeySequence(Qt::CTRL | Qt::Key_F)};
}

ListCommand ListScreen::filterCommand(FilterChoices choices)
{
    m_filterChoices = std::move(choices);
    return {.name = filterName,
            .caption = tr("&Filter..."),
            .run = [this] { btnFilterClick(); },
            .glyph = Glyph::Filter,
            .checkable = true};
}

ListCommand ListScreen::refreshCommand()
{
    return {.name = u"mnuRefresh"_s,
            .caption = tr("&Refresh"),
            .run = [this] { refreshList(); },
            .glyph = Glyph::Refresh,
            .shortcut = QKeySequence(Qt::Key_F5)};
}

ListMenu ListScreen::helpMenu(const QString &caption) const
{
    std::function<void()> help;
    if (m_context.showHelp)
        help = [this] { m_context.showHelp(objectName()); };
    return {tr("&Help"),
            {{.name = u"mnuHelp"_s, .caption = caption, .run = std::move(help), .glyph = Glyph::Help}}};
}

QAction *ListScreen::command(const QString &name) const { return findChild<QAction *>(name); }

// --- the list ---------------------------------------------------------------------------------------------------

QList<Engine::TableReader *> ListScreen::ownedTables()
{
    auto *table = qobject_cast<Engine::TableReader *>(m_data);
    return table ? QList<Engine::TableReader *>{table} : QList<Engine::TableReader *>{};
}

void ListScreen::refreshList()
{
    const WaitCursor hourglass;
    m_data->database().connection().renewReading();
    m_data->refresh();
}

void refreshOpenList(const QString &name)
{
    if (auto *list = findScreen<ListScreen>(name))
        list->refreshList();
}

void ListScreen::btnFilterClick()
{
    if (filterDialog().exec() != QDialog::Accepted)
        return;
    const auto inForce = [this] { return std::pair(m_data->isFiltered(), m_data->filter()); };
    const auto before = inForce();
    applyFilterChoices();
    if (inForce() == before) // another one reads the list by itself
        refreshList();
}

bool ListScreen::moveToKey(int key) { return m_data->moveToKey({key}); }

void ListScreen::applyFilter(const QString &expression) { switchFilter(!expression.isEmpty(), expression); }

void ListScreen::switchFilter(bool on, const QString &expression)
{
    if (on)
        m_data->setFilter(expression);
    m_data->setFiltered(on);
    showFilterMark();
}

void ListScreen::filterBy(const QList<KeyOfField> &keys)
{
    clearFilterDialog();
    presetFilterDialog(keys);
    applyFilter(keyConditions(keys));
}

void ListScreen::resetFilter()
{
    clearFilterDialog();
    applyFilter({});
}

void ListScreen::showFilterMark()
{
    const bool filtered = m_data->isFiltered();
    setWindowTitle(filtered ? tr("%1 (Filtered)").arg(m_caption) : m_caption);
    if (QAction *filter = command(filterName))
        filter->setChecked(filtered);
    if (m_filterChip) {
        const QString words = filterWords();
        m_filterChip->setText(words.isEmpty() ? tr("Filtered") : words);
        const int before = width();
        m_filterChip->setVisible(filtered);
        if (isVisible() && width() > before)
            moveToPlace(*this, geometry()); // the chip has made it wider
    }
    m_grid->setHint(hint());
}

void ListScreen::setCaption(const QString &caption)
{
    m_caption = caption;
    showFilterMark();
}

FilterDialog &ListScreen::filterDialog()
{
    if (!m_filter) {
        m_filter = m_filterChoices.makeDialog();
        m_filter->addColumns(filterColumns());
    }
    return *m_filter;
}

QString ListScreen::chosenExpression() const
{
    const QString ofBoxes = m_filterChoices.expression ? m_filterChoices.expression() : QString();
    return joinConditions({ofBoxes, m_filter->columnsExpression()});
}

void ListScreen::applyFilterChoices()
{
    if (m_filterChoices.apply)
        m_filterChoices.apply();
    else
        applyFilter(chosenExpression());
}

// Others may have narrowed the list by something else since.
QString ListScreen::filterWords() const
{
    return m_filter && chosenExpression() == m_data->filter() ? m_filter->words() : QString();
}

void ListScreen::clearFilterDialog()
{
    if (m_filter)
        m_filter->btnResetClick();
}

// Those that are set off are dear to look at.
FilterColumns ListScreen::filterColumns() const
{
    FilterColumns columns;
    for (const GridColumn &column : m_grid->columns()) {
        const int number = m_data->fieldIndex(column.field);
        if (number < 0 || column.setOff)
            continue;
        const Engine::Field &field = std::as_const(*m_data).field(number);
        if (field.kind == Engine::FieldKind::Calculated)
            continue;
        if (Engine::isText(field.type))
            columns.texts << field.name;
        else if (field.type == Engine::FieldType::Date && columns.day.isEmpty())
            columns.day = field.name;
    }
    return columns;
}

// Beside the buttons: what the list is narrowed to, taken away with one click.
void ListScreen::addFilterChip()
{
    if (!m_filterChoices.makeDialog)
        return;
    m_filterChip = new FilterChip(m_topPanel);
    m_filterChip->setObjectName(u"btnFilterChip"_s);
    m_filterChip->hide();
    m_buttons->insertWidget(m_buttons->count() - 1, m_filterChip);
    connect(m_filterChip, &QAbstractButton::clicked, this, [this] {
        m_guard.runWhenFree([this] { resetFilter(); });
        m_grid->setFocus();
    });
}

void ListScreen::showSum(const QString &label, const QString &figure) { m_status->setSum(label, figure); }

// Behind the command that opens the filter dialog, and behind its button.
void ListScreen::addKeptFilters()
{
    if (!m_filterChoices.makeDialog || !m_context.settings)
        return;
    QAction *filter = command(filterName);
    auto *view = static_cast<QMenu *>(filter->parent());
    auto *kept = new KeptFilterMenu(m_context, m_guard,
                                    {.list = objectName(),
                                     .dialog = [this]() -> FilterDialog & { return filterDialog(); },
                                     .words = [this] { return m_data->isFiltered() ? filterWords() : QString(); },
                                     .apply = [this] { applyFilterChoices(); }},
                                    this);
    const QList<QAction *> entries = view->actions();
    view->insertMenu(entries.value(entries.indexOf(filter) + 1), kept);
    if (auto *button = findChild<QPushButton *>(u"btnFilter"_s))
        m_buttons->insertWidget(m_buttons->indexOf(button) + 1, kept->makeButton(m_topPanel));
}

void ListScreen::say(const QString &text) { m_status->say(text); }

QString ListScreen::hint() const
{
    const auto offers = [this](const QString &button) {
        const auto *found = findChild<QPushButton *>(button);
        return found && found->isEnabled();
    };
    const bool narrowed = m_data->isFiltered() && !m_data->filter().isEmpty();
    if (narrowed && offers(u"btnFilter"_s))
        return tr("No records match the filter. Press Filter to change it.");
    if (narrowed)
        return tr("No records match the filter.");
    if (!m_emptyHint.isEmpty())
        return m_emptyHint;
    return offers(u"btnNew"_s) ? tr("No records yet. Press New to add one.") : tr("No records yet.");
}

// --- the window -------------------------------------------------------------------------------------------------

void ListScreen::showAgain()
{
    if (isVisible())
        showStep();
    bringToFront(*this);
}

void ListScreen::showStep() { showFilterMark(); }

void ListScreen::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (event->spontaneous())
        return;
    if (!m_firstSize.isValid()) {
        sizeForRows();
        placeByOpener(*this);
        m_memory->restore();
    }
    m_guard.run([this] { showStep(); });
}

void ListScreen::sizeForRows()
{
    const QSize room = screen()->availableGeometry().marginsRemoved(expectedFrame(*this)).size();
    const int width = std::max(m_grid->fullWidth(), m_topPanel->sizeHint().width());
    int height = menuBar()->sizeHint().height() + m_topPanel->sizeHint().height() + m_grid->heightForRows(firstRows)
        + statusBar()->sizeHint().height();
    if (m_grid->leastWidth() > room.width())
        height += m_grid->horizontalScrollBar()->sizeHint().height();
    m_firstSize = QSize(width, height).boundedTo(room);
    resize(m_firstSize);
}

bool ListScreen::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_topPanel && event->type() == QEvent::MouseButtonDblClick && m_firstSize.isValid()) {
        if (isMaximized())
            showNormal();
        resize(m_firstSize);
    }
    return QMainWindow::eventFilter(watched, event);
}

} // namespace Tallymere
