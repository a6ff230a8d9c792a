#pragma once

#include "data/fields.h"
#include "engine/records/table.h"

#include <QHash>
#include <QString>

namespace Tallymere {

// The rules of the item search: items in the order of what is being typed, narrowed to one type if wanted.
class ItemSearch
{
public:
    explicit ItemSearch(Engine::Database &database);

    // What is on hand of an item, at one location or at all: one look-up for each row that is shown.
    static constexpr Engine::FieldName<Engine::FieldType::Float> OnHand{u"OnHand"};
    void setLocation(int warehouseId); // 0: all

    // Items with "TypeName", the name of the item's type, and OnHand.
    Engine::Table &items() { return m_items; }
    void open(); // opens them, or reads anew what others have changed
    void reset(); // shows all types, in the order of the item number

    // The item under the cursor. An item that does not exist moves to the first.
    void setItemId(int itemId);
    int itemId() const { return m_items.integer(Fields::ItemID); }

    // What has been typed so far in a search box. Moves to the first item that begins with it, upper and lower case
    // being different; false, and no move, when there is none: time to beep.
    bool typeItemNo(const QString &text);
    bool typeDescription(const QString &text);

    void setItemType(int itemTypeId); // 0: all types

private:
    bool type(const QString &index, const QString &field, const QString &text);
    Engine::Value onHand(int itemId); // null where there has never been any

    int m_location = 0;
    QHash<int, Engine::Value> m_onHand; // by item; looked up once
    Engine::Table m_items;
};

} // namespace Tallymere
