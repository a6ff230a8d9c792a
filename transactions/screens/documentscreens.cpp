#include "transactions/screens/documentscreens.h"

#include "transactions/documents/documentkinds.h"
#include "transactions/screens/invadjustment.h"
#include "transactions/screens/invreceipt.h"
#include "transactions/screens/invreceipts.h"
#include "transactions/screens/invusage.h"
#include "transactions/screens/invusages.h"

#include <algorithm>
#include <stdexcept>

namespace Tallymere {

namespace {

template <typename List> DocumentListScreen *makeList(ScreenContext &context, QWidget *parent)
{
    return new List(context, parent);
}

} // namespace

const QList<DocumentScreens> &documentScreens()
{
    static const QList<DocumentScreens> screens = {
        {DocumentKinds::receipt(), RecordScreens::makes<TfrmInvReceipt>(), makeList<TfrmInvReceipts>},
        {DocumentKinds::usage(), RecordScreens::makes<TfrmUsage>(), makeList<TfrmUsages>},
        {DocumentKinds::adjustment(), RecordScreens::makes<TfrmInvAdjustment>(),
         makeList<DocumentListOf<DocumentKinds::adjustment>>},
    };
    return screens;
}

RecordScreens recordScreens(const DocumentKind &kind)
{
    const QList<DocumentScreens> &all = documentScreens();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&](const DocumentScreens &screens) { return &screens.kind == &kind; });
    if (found == all.end()) // of a kind that is there by half
        throw std::logic_error("There are no screens for " + kind.name.toStdString());
    return {kind.entry.screen, kind.list.screen, found->makeDocument};
}

} // namespace Tallymere
