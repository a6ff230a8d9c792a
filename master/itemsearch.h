#pragma once

#include "engine/table.h"

#include <QString>

namespace Tallymere {

// The rules of the item search: items in the order of what is being typed, narrowed to one type if wanted.
class ItemSearch
{
public:
    explicit ItemSearch(Engine::Database &database);

    // Items with "TypeName", the name of the item's type.
    Engine::Table &items() { return m_items; }
    void open(); // when it is not open
    void reset(); // shows all types, in the order of the item number

    // The item under the cursor. An item that does not exist moves to the first.
    void setItemId(int itemId);
    int itemId() const { return m_items.integer(u"ItemID"); }

    // What has been typed so far in a search box. Moves to the first item that begins with it, upper and lower case
    // being different; false, and no move, when there is none: time to beep.
    bool typeItemNo(const QString &text);
    bool typeDescription(const QString &text);

    void setItemType(int itemTypeId); // 0: all types

private:
    bool type(const QString &index, const QString &field, const QString &text);

    Engine::Table m_items;
};

// Finding one item by its number, as the find and filter dialogs do when the number box is left.

// The ItemID; raises RuleError "Item no. '...' not found", with column "ItemNo", when there is none.
int itemIdByNumber(Engine::Database &database, const QString &itemNo);
// Moves a list to the item. Raises "'text' not found" when the list does not show it.
void moveToItem(Engine::DataSet &list, int itemId, const QString &itemText);

} // namespace Tallymere
