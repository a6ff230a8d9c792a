#pragma once

#include "printing/linelayout.h"
#include "printing/paper.h"

#include <functional>

namespace Tallymere::Printing {

// What stands on the pages besides the report itself.
struct PageTexts
{
    QString organization; // beside the title
    QString printed; // in the footer: "Printed at 25 Nov 26 14:05"
};

// Lays lines out on pages, one page at a time. A heading stays with the first row below it, a total with the last row
// above it; the next page repeats the titles of the columns and says whose rows it goes on with.
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
        bool newPage = false;
    };
    void place(const Block &block);
    void placeInParts(LaidLine line);
    void placeLine(const LaidLine &line);
    void beginPage(const QStringList &continued);
    void addContinued(QStringList names);
    void endPage();
    void addTitle();
    void addRunningTitle();
    void addLinesToFillIn();
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
    Block m_block; // waits for lines that belong to it
    Band m_last = Band::Detail; // of the last line of the block
    QStringList m_open; // the groups in hand, as the next page names them
};

} // namespace Tallymere::Printing
