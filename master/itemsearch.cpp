#include "master/itemsearch.h"

#include "base/formats.h"
#include "data/fields.h"
#include "engine/records/query.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

ItemSearch::ItemSearch(Engine::Database &database)
    : m_items(database, u"Item"_s)
{
    m_items.setIndex(u"ITEMNO"_s);
    m_items.addLookup(Fields::TypeName.sized(40),
                      {Fields::ItemTypeID, u"ItemType"_s, Fields::ItemTypeID, Fields::TypeName});
    m_items.addCalculated(OnHand,
                          [this](const Engine::DataSet &item) { return onHand(item.integer(Fields::ItemID)); });
    m_items.field(OnHand).format = quantityFormat();
}

void ItemSearch::open()
{
    m_onHand.clear();
    m_items.isOpen() ? m_items.refresh() : m_items.open();
}

void ItemSearch::setLocation(int warehouseId)
{
    m_location = warehouseId;
    m_onHand.clear();
}

Engine::Value ItemSearch::onHand(int itemId)
{
    auto known = m_onHand.constFind(itemId);
    if (known == m_onHand.constEnd()) {
        const QString all = u"SELECT sum(QtyOnHand) FROM IBalance WHERE ItemID = ?"_s;
        known = m_onHand.insert(itemId,
                                m_location > 0 ? Engine::singleValue(
                                    m_items.database(), all + " AND WarehouseID = ?"_L1, {itemId, m_location})
                                               : Engine::singleValue(m_items.database(), all, {itemId}));
    }
    return *known;
}

void ItemSearch::reset()
{
    setItemType(0);
    m_items.setIndex(u"ITEMNO"_s);
}

void ItemSearch::setItemId(int itemId)
{
    if (!m_items.moveToKey({itemId}))
        m_items.first();
}

bool ItemSearch::typeItemNo(const QString &text) { return type(u"ITEMNO"_s, Fields::ItemNo, text); }

bool ItemSearch::typeDescription(const QString &text)
{
    return type(u"ITEMDESCRIPTION1"_s, Fields::ItemDescription, text);
}

bool ItemSearch::type(const QString &index, const QString &field, const QString &text)
{
    if (m_items.index() != index)
        m_items.setIndex(index);
    return m_items.locate(field, {text}, Engine::LocateOption::PartialKey);
}

void ItemSearch::setItemType(int itemTypeId)
{
    if (itemTypeId > 0)
        m_items.setFilter(u"ItemTypeID = %1"_s.arg(itemTypeId));
    m_items.setFiltered(itemTypeId > 0);
}

} // namespace Tallymere
