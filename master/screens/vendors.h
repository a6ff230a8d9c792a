#pragma once

#include "master/screens/masterlistscreen.h"
#include "master/screens/recordfindscreen.h"

namespace Tallymere {

// "Vendors". Invoices and cheques are the host's; there is nothing here to open for them yet.
class TfrmVendors final : public MasterListScreen
{
    Q_OBJECT

public:
    TfrmVendors(ScreenContext &context, QWidget *parent);
};

// "Vendors Filter": by currency, and whether vendors are suspended.
class TfrmVendorsFilter final : public FilterDialog
{
    Q_OBJECT

public:
    TfrmVendorsFilter(ScreenContext &context, QWidget *parent);
};

// "Find Vendor": moves a list that has vendors to one of them.
class TfrmVendorsFind final : public RecordFindScreen
{
    Q_OBJECT

public:
    TfrmVendorsFind(ScreenContext &context, ListScreen &list);
};

} // namespace Tallymere
