#include "master/screens/vendors.h"

#include "data/fields.h"
#include "data/lookupsdatainv.h"
#include "master/masterkinds.h"
#include "master/screens/vendor.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmVendors::TfrmVendors(ScreenContext &context, QWidget *parent)
    : MasterListScreen(context, MasterKinds::vendor(), RecordScreens::makes<TfrmVendor>(), parent)
{
    buildSearched<TfrmVendorsFilter, TfrmVendorsFind>([](ListDescription &list) {
        QList<ListCommand> &view = menu(list, tr("&View")).commands;
        view.insert(view.size() - 1, {.name = u"mnuInvoices"_s, .caption = tr("&Invoices")});
        view.insert(view.size() - 1, {.name = u"mnuCheques"_s, .caption = tr("&Cheques")});
    });
}

TfrmVendorsFilter::TfrmVendorsFilter(ScreenContext &context, QWidget *parent)
    : FilterDialog(context,
                   {.name = u"frmVendorsFilter"_s,
                    .caption = tr("Vendors Filter"),
                    .boxes = {{.name = u"cboCurrency"_s, .label = tr("C&urrency:"), .list = u"Currency"_s}},
                    .mark = Fields::Suspended,
                    .markLabel = tr("Suspended")},
                   parent)
{
}

TfrmVendorsFind::TfrmVendorsFind(ScreenContext &context, ListScreen &list)
    : RecordFindScreen(context,
                       {.name = u"frmVendorsFind"_s,
                        .caption = tr("Find Vendor"),
                        .numberBox = u"editVendor"_s,
                        .numberLabel = tr("&Vendor no.:"),
                        .nameBox = u"cboVendor"_s,
                        .nameLabel = tr("&Name:")},
                       MasterKinds::vendor(), context.lookups.tblVendor(), list)
{
}

} // namespace Tallymere
