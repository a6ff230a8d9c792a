#pragma once

#include "printing/reportlayout.h"
#include "printing/rowreader.h"

#include <QDate>
#include <QString>
#include <QStringList>

namespace Engine {
class Database;
}

namespace Tallymere {

// What a report is asked for; 0 or empty: not chosen.
struct ReportSelection
{
    int warehouseId = 0;
    int itemTypeId = 0;
    int itemId = 0;
    int period = 0; // the first one reported, in
    int year = 0; // this fiscal year
    QDate day{}; // the day reported, in place of the period
    int weeksOfUse = 0; // what to buy: over which use is looked at,
    int weeksOfCover = 0; // and which the stock is to last;
    bool alsoInStock = false; // with what lasts long enough
    QString filter{}; // the filter expression of the list that is printed,
    QString order{}; // and its order: an index of its table, or columns of its query. Empty: the usual one
};

// A report: where its rows come from and what they look like on paper. All reports are such descriptions
// (valuereports.cpp, perpetualreports.cpp, listreports.cpp); what they are made of does the rest.
struct ReportDescription
{
    // What it can be asked for.
    struct Parameters
    {
        bool location = false;
        bool itemType = false;
        bool item = false; // one, which has to be named
        bool period = false;
        bool day = false; // or a day in its place
        bool buying = false; // weeks of use and of cover
        bool formChoices = false; // how a form is to be written on (BlankFormChoices), of a location
    };
    // The source: a query (queryRows, valueRows, perpetualRows) or a list by its own rules.
    using Rows = std::function<Printing::RowReaderPtr(Engine::Database &, const ReportDescription &,
                                                      const ReportSelection &)>;
    using Notes = QStringList (*)(Engine::Database &, const ReportSelection &);

    QString name; // "TrptValueByItem"
    QString listText; // as the wizard offers it and the command line calls it: "Value by Item"
    bool inWizard = false; // offered there, in the order of ReportList; by the command line all are
    Parameters parameters{};
    Rows rows = nullptr; // null: it is only offered, and has nothing to show yet
    Notes notes = nullptr; // further headings, as the data are
    Printing::ReportLayout layout;
};

} // namespace Tallymere
