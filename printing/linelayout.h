#pragma once

#include "printing/laidline.h"
#include "printing/reportlines.h"

#include <vector>

namespace Tallymere::Printing {

// Gives the lines of a report their texts and places within the width of a page.
class LineLayout
{
public:
    // The layout and the lines outlive the object.
    LineLayout(const ReportLayout &layout, const ReportLines &lines, const QRectF &area);

    LaidLine layOut(const ReportLine &line) const;
    LaidLine columnTitles() const;
    QString groupName(int group, const ReportLine &line) const; // what names the group that the line is in

private:
    struct PlacedColumn
    {
        const Column *column;
        int field;
        int openingField;
        double left;
        double width;
        double fraction; // room right of the decimal point
    };

    struct Name // of a group
    {
        QString field;
        QString text;
    };

    void placeColumns();
    std::vector<double> columnWidths() const; // with the gap behind each
    double widthOf(const Column &column, double share) const;
    double roomForTitle(const Column &column) const;
    double firstInset() const;
    LaidLine cells(const ReportLine &line) const;
    LaidLine groupHeading(const ReportLine &line) const;
    LaidLine total(const ReportLine &line) const;
    QString totalText(const ReportLine &line, TextStyle style, double room) const;
    QList<Name> groupNames(int group, const ReportLine &line) const;
    void addCell(LaidLine &line, const PlacedColumn &place, const QString &text, TextStyle style) const;
    void addBarcode(LaidLine &line, const PlacedColumn &place, const QString &text, const QRectF &room) const;
    void addContents(LaidLine &line, const QStringList &texts) const;
    QString cellText(const PlacedColumn &place, const ReportLine &line) const;
    double headingLeft(const QString &field) const;
    double titleLeft(const PlacedColumn &place) const;
    static double titleRight(const PlacedColumn &place);

    const ReportLayout &m_layout;
    const ReportLines &m_lines;
    QRectF m_area;
    std::vector<PlacedColumn> m_columns;
};

} // namespace Tallymere::Printing
