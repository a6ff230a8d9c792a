#pragma once

#include "engine/values/value.h"

#include <functional>
#include <QList>
#include <QString>
#include <QStringList>

namespace Tallymere::Printing {

enum class Align {
    Left,
    Right,
    Decimal, // decimal points stand below each other
};

// What a detail row shows in a column.
enum class Content {
    Text,
    Barcode, // the value as Code 128 with the text below, where that can be had; for the first column
    Blank, // a box to write in
};

// What an opening row shows in a column.
struct Opening
{
    QString field{}; // this one's value in place of the column's
    QString text{}; // or these words
};

struct Column
{
    QString field; // of the rows; in a CSV file also the title
    QString title; // above the column
    double width = 1; // share of the line, or of what the others leave of it
    Align align = Align::Left;
    std::function<QString(const Engine::Value &)> display{}; // empty: Value::toText()
    bool wraps = false; // onto further lines; otherwise what is too long is cut, and a number narrowed
    bool inDetail = true; // false: shown by headings and opening rows only
    Opening opening{}; // without it opening rows show nothing here
    Content content = Content::Text;
    // Room for what stands right of the decimal point, for Align::Decimal.
    QString fraction = QStringLiteral(".000");
    double room = 0; // in units of the page: what it takes of the line before others share it; 0: it shares
};

// Rows that follow each other with the same key are a group; groups nest in the order of the list.
struct Group
{
    QString key; // field
    QStringList fields; // that name the group: in its heading, above its rows on the next page, and in each CSV row
    bool heading = false; // a line of its own before the first row
    // Of the line behind the last row, in which %1 is what names the group; empty: no such line.
    QString totalText{};
    bool onNewPage = false; // each group begins a page
    // What stands for the first of the fields in a group that none of them names: words with the key in place of %1, and
    // words for a group without a key. Empty: nothing.
    QString unnamed{};
    QString keyless{};
};

enum class TotalOf {
    Amounts, // sum of money
    Quantities, // sum of floating values
    Closing, // sum of what the accounts of the group end at: of an account's last row, be it the opening one
};

struct Total
{
    QString field;
    TotalOf what = TotalOf::Amounts;
    bool ofReport = true; // false: it is summed up for the groups only
};

// What a report looks like. Its rows come from a RowReader.
struct ReportLayout
{
    QString title;
    QStringList headings{}; // below the title; empty ones are passed over
    bool landscape = false;
    QList<Column> columns;
    QList<Group> groups{};
    QList<Total> totals{}; // fields that have a column; shown in it
    bool details = true; // false: only the totals are shown
    QString reportTotalText{}; // of the last line; empty: no such line
    double rowHeight = 0; // in points; more than a line of text needs
    bool rowRules = false; // a thin line below each row
    QStringList toFillIn{}; // at the top of each page: words with a line behind each to write on

    QStringList usedFields() const; // those that the rows must have
};

} // namespace Tallymere::Printing
