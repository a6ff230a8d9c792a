#include "transactions/screens/countgrid.h"

#include "base/formats.h"
#include "base/ruleerror.h"
#include "controls/grids/stepbox.h"
#include "controls/windows/typing.h"
#include "data/fields.h"
#include "transactions/screens/countmodel.h"

#include <limits>
#include <optional>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <utility>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

Engine::Field field(const QString &name, Engine::FieldType type, Engine::FieldFormat format, const QString &label)
{
    Engine::Field field;
    field.name = name;
    field.type = type;
    field.format = std::move(format);
    field.label = label;
    return field;
}

std::optional<CountList::Order> orderOf(int column)
{
    switch (column) {
    case CountModel::ItemNo:
        return CountList::Order::ItemNo;
    case CountModel::Category:
        return CountList::Order::Category;
    case CountModel::Item:
        return CountList::Order::Item;
    case CountModel::StandardCost:
        return CountList::Order::Cost;
    default:
        return std::nullopt;
    }
}

bool typesNumber(const QKeyEvent *event)
{
    return !event->text().isEmpty() && !event->modifiers().testFlag(Qt::ControlModifier)
        && (event->text().front().isDigit() || event->text().front() == u'.' || event->text().front() == u',');
}

} // namespace

CountGrid::CountGrid(QWidget *parent)
    : EntryGrid(parent)
    , m_quantity(field(Fields::Quantity, Engine::FieldType::Float, quantityFormat(), tr("Current Quantity")))
    , m_cost(field(Fields::StandardCost, Engine::FieldType::Money, currencyFormat(), tr("Standard Cost")))
{
}

void CountGrid::setList(const CountList &list, CountActions actions, const Guard &guard)
{
    m_list = &list;
    m_actions = std::move(actions);
    setGuard(guard);
    m_model = new CountModel(list, this);
    m_model->enterText = [this](const QModelIndex &cell, const QString &text) { return enterText(cell, text); };
    showModel(m_model, CountModel::gridColumns());
    horizontalHeader()->setSortIndicatorShown(true);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &CountGrid::titleClicked);
}

void CountGrid::setBlind(bool blind)
{
    if (std::exchange(m_blind, blind) != blind)
        m_model->setBlind(blind);
}

void CountGrid::listChanged()
{
    dropEntry();
    const qint64 kept = m_currentId;
    clearSpans();
    m_model->listChanged();
    for (const int row : m_model->headings())
        setSpan(row, 0, 1, CountModel::ColumnCount);
    showOrder();
    const int item = m_list->rowOfItem(kept);
    if (m_list->size() > 0)
        showItem(std::max(0, item));
}

void CountGrid::itemChanged(int item) { m_model->rowChanged(item); }

int CountGrid::currentItem() const { return m_model->itemAt(currentIndex().row()); }

void CountGrid::showItem(int item)
{
    const int row = m_model->rowOf(item);
    if (row >= 0)
        setCurrentIndex(m_model->index(row, CountModel::Quantity));
}

void CountGrid::countItem(int item)
{
    showItem(item);
    setFocus();
}

QString CountGrid::shownHint() const { return m_model && m_model->rowCount() == 0 ? hint() : QString(); }

void CountGrid::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    EntryGrid::currentChanged(current, previous);
    if (const int item = m_model->itemAt(current.row()); item >= 0)
        m_currentId = m_list->row(item).itemId;
    if (current.row() != previous.row())
        Q_EMIT itemShown();
}

void CountGrid::showOrder()
{
    for (int column = 0; column < CountModel::ColumnCount; ++column) {
        if (orderOf(column) == m_list->order())
            horizontalHeader()->setSortIndicator(column, Qt::AscendingOrder);
    }
}

// The header has moved its arrow already, whatever the title is of.
void CountGrid::titleClicked(int column)
{
    showOrder();
    const std::optional<CountList::Order> order = orderOf(column);
    if (order && finishEntry())
        guard().run([&] { m_actions.sort(*order); });
}

// --- typing -----------------------------------------------------------------------------------------------------

LineSteps CountGrid::limits(int item) const { return {.step = 1, .lowest = 0, .highest = m_list->highest(item)}; }

EntryGrid::Editor CountGrid::makeEditor(QWidget *parent, const QModelIndex &cell)
{
    if (cell.column() != CountModel::Quantity)
        return lineEdit(parent);
    LineSteps steps = limits(m_model->itemAt(cell.row()));
    if (m_blind) // the arrows must not stop at what is recorded
        steps.highest = std::numeric_limits<double>::max();
    const Editor made = stepBox(parent, m_quantity, steps);
    made.box->setObjectName(u"wwDBSpinEditQuantity"_s);
    return made;
}

void CountGrid::takeEntry(const QModelIndex &cell, const QString &text, Entry entry)
{
    if (entry == Entry::Unchanged && !m_confirming)
        return;
    const int item = m_model->itemAt(cell.row());
    if (cell.column() == CountModel::Quantity)
        takeQuantity(item, text);
    else
        m_actions.setCost(item, m_cost.parse(text).toMoney());
}

// An empty text is no count. What was taken over from a draft may lie above the record, and can be confirmed.
void CountGrid::takeQuantity(int item, const QString &text)
{
    const Engine::Value quantity = m_quantity.parse(text);
    if (quantity.isNull())
        return m_actions.count(item, std::nullopt);
    if (quantity.toDouble() != m_list->row(item).counted())
        m_list->requireWithinRecord(item, quantity.toDouble(), m_blind);
    m_actions.count(item, quantity.toDouble());
}

void CountGrid::entered() { nextItem(); }

void CountGrid::nextItem()
{
    if (const int item = currentItem(); item >= 0)
        showItem(std::min(item + 1, m_list->size() - 1));
}

bool CountGrid::editorKey(QKeyEvent *event)
{
    const QScopedValueRollback confirming(m_confirming, isEnter(*event));
    return EntryGrid::editorKey(event);
}

bool CountGrid::isCode(const QString &text) const
{
    bool isOne = false;
    guard().run([&] { isOne = m_actions.isCode(text); });
    return isOne;
}

void CountGrid::takeScan(const QString &code)
{
    guard().run([&] { m_actions.scan(code); });
}

void CountGrid::gridKey(QKeyEvent *event)
{
    const int item = currentItem();
    if (isEnter(*event))
        return nextItem();
    if (event->key() == Qt::Key_Delete && item >= 0) {
        guard().run([&] { m_actions.count(item, std::nullopt); });
        return;
    }
    if (item >= 0 && typesNumber(event) && currentIndex().column() != CountModel::StandardCost)
        showItem(item);
    EntryGrid::gridKey(event);
}

} // namespace Tallymere
