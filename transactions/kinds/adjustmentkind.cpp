#include "data/fields.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/kinds/adjustmententry.h"
#include "transactions/kinds/adjustmentposting.h"
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
        .keyField = Fields::AdjustmentID,
        .numberField = std::nullopt,
        .dateField = Fields::AdjDate,
        .entry =
            {
                .screen = u"frmInvAdjustment"_s,
                .counters = {u"ItemCtl"_s, Fields::NextInvAdjustmentID, std::nullopt},
                .title = TransactionsTexts::tr("Inventory Adjustment %1"),
                .newTitle = TransactionsTexts::tr("New Inventory Adjustment"),
                .postedRefusal = TransactionsTexts::tr(
                    "Posted adjustments cannot be changed...\n\nTo undo an adjustment after posting, you must "
                    "\"reverse\" it (enter it again with the opposite amount)."),
                .numberTaken = TransactionsTexts::tr("AdjustmentID already exists"),
                .closingQuestion = TransactionsTexts::tr("Do you want to save changes?"),
                .nothingEntered = TransactionsTexts::tr("Quantities have not been entered"),
                .locationGone = TransactionsTexts::tr("Location no longer exists"),
                .requiredFields = {Fields::GLYear, Fields::GLPeriod, Fields::AdjDate, Fields::AdjDescription,
                                   Fields::WarehouseID},
                .descriptionField = Fields::AdjDescription,
                .lineColumns = {{Fields::Quantity, TransactionsTexts::tr("Quantity"), 100, Qt::AlignRight},
                                {Fields::ItemNo, TransactionsTexts::tr("Item no."), 130, Qt::AlignLeft,
                                 Fields::ItemID},
                                {Fields::ItemDescription, TransactionsTexts::tr("Description"), 450}},
                .make = [](Engine::Database &database,
                           Prompts &prompts) { return std::make_unique<AdjustmentEntry>(database, prompts); },
                .leadsListUnsaved = true,
            },
        .list =
            {
                .screen = u"frmInvAdjustments"_s,
                .caption = TransactionsTexts::tr("Inventory Adjustments"),
                .columns = {{Fields::Periodppyyyy, TransactionsTexts::tr("Period"), 80},
                            {Fields::AdjDate, TransactionsTexts::tr("Date"), 90},
                            {Fields::AdjDescription, TransactionsTexts::tr("Description"), 260},
                            {Fields::WarehouseName, TransactionsTexts::tr("Location"), 190},
                            DocumentKinds::postedColumn()},
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
                             .nameField = Fields::AdjDescription,
                             .posted = TransactionsTexts::tr(
                                 "Unable to delete adjustment '%1'...\nIt has already been posted")},
            },
        .posting = adjustmentPosting(),
        .files =
            {
                .requiredColumns = {Fields::AdjDescription, Fields::Quantity},
            },
    };
    return kind;
}

} // namespace Tallymere
