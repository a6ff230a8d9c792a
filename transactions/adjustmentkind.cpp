#include "transactions/adjustmententry.h"
#include "transactions/adjustmentposting.h"
#include "transactions/documentkinds.h"
#include "transactions/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

const DocumentKind &DocumentKinds::adjustment()
{
    static const DocumentKind kind{
        .name = u"adjustments"_s,
        .oneName = u"adjustment"_s,
        .headerTable = u"IAdjust"_s,
        .lineTable = u"IAdjDet"_s,
        .keyField = u"AdjustmentID"_s,
        .numberField = std::nullopt,
        .dateField = u"AdjDate"_s,
        .entry =
            {
                .screen = u"frmInvAdjustment"_s,
                .counters = {u"ItemCtl"_s, u"NextInvAdjustmentID"_s, std::nullopt},
                .title = TransactionsTexts::tr("Inventory Adjustment %1"),
                .newTitle = TransactionsTexts::tr("New Inventory Adjustment"),
                .postedRefusal = TransactionsTexts::tr(
                    "Posted adjustments cannot be changed...\n\nTo undo an adjustment after posting, you must "
                    "\"reverse\" it (enter it again with the opposite amount)."),
                .numberTaken = TransactionsTexts::tr("AdjustmentID already exists"),
                .closingQuestion = TransactionsTexts::tr("Do you want to save changes?"),
                .nothingEntered = TransactionsTexts::tr("Quantities have not been entered"),
                .locationGone = TransactionsTexts::tr("Location no longer exists"),
                .requiredFields = {u"GLYear"_s, u"GLPeriod"_s, u"AdjDate"_s, u"AdjDescription"_s, u"WarehouseID"_s},
                .lineColumns = {{u"Quantity"_s, TransactionsTexts::tr("Quantity"), 100, Qt::AlignRight},
                                {u"ItemNo"_s, TransactionsTexts::tr("Item no."), 130, Qt::AlignLeft, u"ItemID"_s},
                                {u"ItemDescription"_s, TransactionsTexts::tr("Description"), 450}},
                .make = [](Engine::Database &database,
                           Prompts &prompts) { return std::make_unique<AdjustmentEntry>(database, prompts); },
                .leadsListUnsaved = true,
            },
        .list =
            {
                .screen = u"frmInvAdjustments"_s,
                .caption = TransactionsTexts::tr("Inventory Adjustments"),
                .columns = {{u"Periodppyyyy"_s, TransactionsTexts::tr("Period"), 80},
                            {u"AdjDate"_s, TransactionsTexts::tr("Date"), 90},
                            {u"AdjDescription"_s, TransactionsTexts::tr("Description"), 260},
                            {u"WarehouseName"_s, TransactionsTexts::tr("Location"), 190},
                            {u"Posted"_s, TransactionsTexts::tr("Posted"), 60}},
                .orders = {{u"PERIODDATEDESC"_s}},
                .showsFirstRow = true,
                .report = u"TrptInvAdjustments"_s,
                .filter =
                    {
                        .screen = u"frmInvAdjustmentsFilter"_s,
                        .caption = TransactionsTexts::tr("Inventory Adjustments Filter"),
                        .notPosted = u"(Posted = false)"_s,
                    },
                .deleting = {.question = TransactionsTexts::tr("Delete adjustment '%1'?"),
                             .nameField = u"AdjDescription"_s,
                             .posted = TransactionsTexts::tr(
                                 "Unable to delete adjustment '%1'...\nIt has already been posted")},
            },
        .posting = adjustmentPosting(),
        .files =
            {
                .requiredColumns = {u"AdjDescription"_s, u"Quantity"_s},
            },
    };
    return kind;
}

} // namespace Tallymere
