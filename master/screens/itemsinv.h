#pragma once

#include "master/screens/masterlistscreen.h"

namespace Tallymere {

// "Items", which can be copied, lead to their stock and their history, and can be brought in from the host.
class TfrmItemsInv final : public MasterListScreen
{
    Q_OBJECT

public:
    TfrmItemsInv(ScreenContext &context, QWidget *parent);

    void btnCopyClick();

private:
    void describe(ListDescription &list);
    // What a command does that opens another list at the current item; nothing when there is no such list.
    std::function<void()> jump(const QString &screen, const QString &rights);
};

// "Items Filter": by type, and whether items are suspended.
class TfrmItemsFilter final : public FilterDialog
{
    Q_OBJECT

public:
    TfrmItemsFilter(ScreenContext &context, QWidget *parent);

    void SetItemTypeID(int itemTypeId) { setKey(QStringLiteral("cboItemType"), itemTypeId); }
    int GetItemTypeID() const { return filter().key; } // 0: none
};

} // namespace Tallymere
