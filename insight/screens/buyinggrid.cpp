#include "insight/screens/buyinggrid.h"

#include "base/formats.h"
#include "controls/windows/typing.h"
#include "data/fields.h"
#include "insight/screens/buyingmodel.h"

#include <QKeyEvent>

namespace Tallymere {

namespace {

bool typesNumber(const QKeyEvent *event)
{
    return !event->text().isEmpty() && !event->modifiers().testFlag(Qt::ControlModifier)
        && (event->text().front().isDigit() || event->text().front() == u'.' || event->text().front() == u',');
}

} // namespace

BuyingGrid::BuyingGrid(QWidget *parent)
    : EntryGrid(parent)
{
    m_quantity.name = Fields::Quantity;
    m_quantity.type = Engine::FieldType::Float;
    m_quantity.format = quantityFormat();
    m_quantity.label = tr("To buy");
}

void BuyingGrid::setList(const BuyingList &list, TakeQuantity take, const Guard &guard)
{
    m_list = &list;
    m_take = std::move(take);
    setGuard(guard);
    m_model = new BuyingModel(list, this);
    showModel(m_model, BuyingModel::gridColumns());
}

void BuyingGrid::listChanged()
{
    dropEntry();
    const int kept = m_currentId;
    clearSpans();
    m_model->listChanged();
    for (const int row : m_model->headings())
        setSpan(row, 0, 1, BuyingModel::ColumnCount);
    int item = 0;
    for (int i = 0; i < m_list->size(); ++i)
        if (m_list->row(i).item.item == kept)
            item = i;
    if (m_list->size() > 0)
        showItem(item);
}

int BuyingGrid::currentItem() const { return m_model->itemAt(currentIndex().row()); }

void BuyingGrid::showItem(int item)
{
    setCurrentIndex(m_model->index(m_model->rowOf(item), BuyingModel::Quantity));
}

QString BuyingGrid::shownHint() const { return m_model && m_model->rowCount() == 0 ? hint() : QString(); }

void BuyingGrid::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    EntryGrid::currentChanged(current, previous);
    if (const int item = m_model->itemAt(current.row()); item >= 0)
        m_currentId = m_list->row(item).item.item;
    if (current.row() != previous.row())
        Q_EMIT itemShown();
}

EntryGrid::Editor BuyingGrid::makeEditor(QWidget *parent, const QModelIndex &) { return lineEdit(parent); }

void BuyingGrid::takeEntry(const QModelIndex &cell, const QString &text, Entry entry)
{
    if (entry == Entry::Unchanged)
        return;
    const Engine::Value quantity = m_quantity.parse(text);
    take(m_model->itemAt(cell.row()), quantity.isNull() ? std::nullopt : std::optional(quantity.toDouble()));
}

void BuyingGrid::take(int item, std::optional<double> quantity)
{
    m_take(item, quantity);
    m_model->rowChanged(item);
}

void BuyingGrid::entered() { nextItem(); }

void BuyingGrid::nextItem()
{
    if (const int item = currentItem(); item >= 0)
        showItem(std::min(item + 1, m_list->size() - 1));
}

void BuyingGrid::gridKey(QKeyEvent *event)
{
    const int item = currentItem();
    if (isEnter(*event))
        return nextItem();
    if (event->key() == Qt::Key_Delete && item >= 0) {
        guard().run([&] { take(item, 0); });
        return;
    }
    if (item >= 0 && typesNumber(event))
        showItem(item);
    EntryGrid::gridKey(event);
}

} // namespace Tallymere
