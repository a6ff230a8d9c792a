#pragma once

#include "printing/linelayout.h"
#include "printing/paper.h"

#include <functional>
#include <vector>

namespace Tallymere::Printing {

// What stands on the pages besides the report itself.
struct PageTexts
{
    QString organization; // beside the title
    QString printed; // in the footer: "Printed at 25 Nov 26 14:05"
};

// Lays lines out on pages, one page at a time. A heading stays with the first row below it, a total with the last row
// above it, and a group of a few rows is not parted where a page has room for it; the next page repeats the titles of the
// columns and says whose rows it goes on with. A group of one row has no total, which would only repeat the row.
class PageMaker
{
public:
    using TakePage = std::function<void(const Page &)>;

    // The layout and the lines outlive the object.
    PageMaker(const ReportLayout &layout, const ReportLines &lines, const Paper &paper, const PageTexts &texts,
              TakePage takePage);

    void add(const ReportLine &line);
    void finish(); // the last page; a report without lines has one, which says so

private:
    // Lines that must not be parted.
    struct Block
    {
        QList<LaidLine> lines{};
        QStringList continued{}; // the groups that it goes on with
        QStringList open{}; // the groups that it ends in
        bool newPage = false;

        double height() const;
    };
    // A group in hand.
    struct OpenGroup
    {
        int rows = 0;
        size_t firstBlock = 0; // among those that wait, as long as the group is one of a few rows
    };
    void beginBlock(const ReportLine &line);
    void endGroups(size_t from);
    void join(size_t firstBlock);
    void placeFinished();
    void place(const Block &block);
    void placeInParts(LaidLine line, const QStringList &open);
    void placeLine(const LaidLine &line);
    void beginPage(const QStringList &continued);
    void addContinued(QStringList names);
    void endPage();
    void addTitle();
    void addRunningTitle();
    void addLinesToFillIn();
    double roomOfPage() const; // for lines, on a page after the first
    void rule(double y, double thickness, double left, double right);

    const ReportLayout &m_layout;
    PageTexts m_texts;
    TakePage m_takePage;
    QRectF m_area;
    LineLayout m_lineLayout;
    LaidLine m_columnTitles;
    double m_bottom = 0; // of what lines may take

    Page m_page;
    double m_y = 0;
    int m_pages = 0;
    bool m_onPage = false;
    bool m_pageIsFresh = false; // it has no line of the report yet
    bool m_empty = true; // of lines
    std::vector<Block> m_waiting; // for lines that belong to the last one, or for the end of a group
    std::vector<OpenGroup> m_groups;
    Band m_last = Band::Detail; // of the last line
    QStringList m_open; // the groups in hand, as the next page names them
};

} // namespace Tallymere::Printing
