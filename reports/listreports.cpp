#include "base/formats.h"
#include "data/auditview.h"
#include "master/masterkinds.h"
#include "master/masterlist.h"
#include "reports/columns.h"
#include "reports/datasetrows.h"
#include "reports/reportlist.h"
#include "reports/texts.h"
#include "transactions/books/totalsview.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/documents/documentlist.h"
#include "transactions/documents/historyview.h"

#include <utility>

using namespace Qt::StringLiterals;
using Engine::Database;
using Tallymere::Printing::Column;
using Tallymere::Printing::RowReaderPtr;

namespace Tallymere::ReportList {

namespace {

// --- where their rows come from: the rules of the lists, as the list's filter leaves them ---------------------------

template <typename View>
RowReaderPtr rowsOf(std::unique_ptr<View> view, Engine::DataSet &set, const ReportDescription &report,
                    const ReportSelection &selection)
{
    view->open();
    if (!selection.filter.isEmpty()) {
        set.setFilter(selection.filter);
        set.setFiltered(true);
    }
    return std::make_unique<DataSetRows<View>>(std::move(view), set, report.layout);
}

// In the order of the index, or, without one, in the list's.
ReportDescription::Rows masterRows(const MasterKind &kind, const QString &index = {})
{
    return [&kind, index](Database &database, const ReportDescription &report, const ReportSelection &selection) {
        auto list = std::make_unique<MasterList>(database, kind);
        const QString order = index.isEmpty() ? selection.order : index;
        if (!order.isEmpty())
            list->table().setIndex(order);
        Engine::DataSet &table = list->table();
        return rowsOf(std::move(list), table, report, selection);
    };
}

ReportDescription::Rows documentRows(const DocumentKind &kind)
{
    return [&kind](Database &database, const ReportDescription &report, const ReportSelection &selection) {
        auto list = std::make_unique<DocumentList>(database, kind);
        if (!selection.order.isEmpty())
            list->table().setIndex(selection.order);
        Engine::DataSet &table = list->table();
        return rowsOf(std::move(list), table, report, selection);
    };
}

RowReaderPtr historyRows(Database &database, const ReportDescription &report, const ReportSelection &selection)
{
    auto view = std::make_unique<HistoryView>(database);
    Engine::DataSet &table = view->table();
    return rowsOf(std::move(view), table, report, selection);
}

RowReaderPtr totalsRows(Database &database, const ReportDescription &report, const ReportSelection &selection)
{
    auto view = std::make_unique<TotalsView>(database, TotalsView::figuresFor(selection.filter));
    if (!selection.order.isEmpty())
        view->query().setOrderBy(selection.order);
    Engine::DataSet &query = view->query();
    return rowsOf(std::move(view), query, report, selection);
}

RowReaderPtr auditRows(Database &database, const ReportDescription &report, const ReportSelection &selection)
{
    auto view = std::make_unique<AuditView>(database);
    if (!selection.order.isEmpty())
        view->query().setOrderBy(selection.order);
    Engine::DataSet &query = view->query();
    return rowsOf(std::move(view), query, report, selection);
}

ReportDescription listReport(const QString &name, const QString &title, ReportDescription::Rows rows,
                             const QList<Column> &columns)
{
    ReportDescription report;
    report.name = name;
    report.listText = title;
    report.rows = std::move(rows);
    report.layout.title = title;
    report.layout.columns = columns;
    return report;
}

ReportDescription wide(ReportDescription report)
{
    report.layout.landscape = true;
    return report;
}

} // namespace

QList<ReportDescription> listReports()
{
    using namespace Columns;
    const auto period = [] { return text(Fields::Periodppyyyy, ReportsTexts::tr("Period"), 0.9); };
    const auto posted = [] { return mark(Fields::Posted, ReportsTexts::tr("Posted")); };
    const QString date = ReportsTexts::tr("Date");

    return {
        listReport(u"TrptItemTypes"_s, ReportsTexts::tr("Item Types"), masterRows(MasterKinds::itemType()),
                   {text(Fields::TypeName, ReportsTexts::tr("Name"), 1)}),
        listReport(u"TrptItems"_s, ReportsTexts::tr("Items"), masterRows(MasterKinds::item()),
                   {itemNo(), description(), unitCost(Fields::UnitPrice, ReportsTexts::tr("Unit Price")),
                    text(Fields::TaxCodes, ReportsTexts::tr("Tax"), 0.6),
                    unitCost(Fields::WgtAvgCost, ReportsTexts::tr("Wgt Av Cost")),
                    unitCost(Fields::StandardCost, ReportsTexts::tr("Stnd Cost"))}),
        listReport(u"TrptVendors"_s, ReportsTexts::tr("Vendors"),
                   masterRows(MasterKinds::vendor(), u"VendorName1"_s),
                   {text(Fields::VendorNo, ReportsTexts::tr("Vendor no."), 1),
                    text(Fields::VendorName, ReportsTexts::tr("Name"), 2.4),
                    text(Fields::Phone, ReportsTexts::tr("Phone"), 1.2),
                    text(Fields::Notes, ReportsTexts::tr("Notes"), 3)}),
        listReport(
            u"TrptInvReceipts"_s, ReportsTexts::tr("Inventory Receipts"), documentRows(DocumentKinds::receipt()),
            {period(), text(Fields::ReceiptNo, ReportsTexts::tr("Receipt no."), 1),
             Columns::date(Fields::ReceiptDate, date), text(Fields::PurchaseOrderNo, ReportsTexts::tr("PO"), 1.2),
             text(Fields::VendorName, ReportsTexts::tr("Vendor"), 3), location(), posted()}),
        listReport(u"TrptUsages"_s, ReportsTexts::tr("Inventory Usage"), documentRows(DocumentKinds::usage()),
                   {period(), text(Fields::UsageNo, ReportsTexts::tr("Usage no."), 1),
                    Columns::date(Fields::InventoryDate, date), location(),
                    amount(Fields::InvoiceAmount, ReportsTexts::tr("Amount")), posted()}),
        listReport(u"TrptInvAdjustments"_s, ReportsTexts::tr("Inventory Adjustments"),
                   documentRows(DocumentKinds::adjustment()),
                   {period(), text(Fields::AdjDescription, ReportsTexts::tr("Description"), 3),
                    Columns::date(Fields::AdjDate, date), location(), posted()}),
        wide(listReport(u"TrptInvHistory"_s, ReportsTexts::tr("Inventory History"), historyRows,
                        {itemNo(), description(), Columns::date(Fields::TransDate, date), period(),
                         text(Fields::TransTypeName, ReportsTexts::tr("Type"), 1.2),
                         text(Fields::TransDescription, ReportsTexts::tr("Description"), 2.8),
                         quantity(Fields::Quantity), unitCost(),
                         text(Fields::WarehouseName, ReportsTexts::tr("Location"), 2.6)})),
        listReport(u"TrptInvTotals"_s, ReportsTexts::tr("Inventory Totals"), totalsRows,
                   {itemNo(), description(), location(),
                    quantity(Fields::QtyOnHand, ReportsTexts::tr("Quantity On Hand"))}),
        wide(listReport(u"TrptAudit"_s, ReportsTexts::tr("Audit List"), auditRows,
                        {Columns::date(AuditView::Day, date), text(AuditView::Time, ReportsTexts::tr("Time"), 0.6),
                         text(AuditView::What, ReportsTexts::tr("What was done"), 5),
                         text(AuditView::Who, ReportsTexts::tr("User"), 1.4),
                         Columns::date(AuditView::Concerned, ReportsTexts::tr("Day concerned"))})),
    };
}

} // namespace Tallymere::ReportList
