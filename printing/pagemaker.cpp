#include "printing/pagemaker.h"

#include "printing/texts.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tallymere::Printing {

namespace {
constexpr double footerRoom = 20 * unitsPerPoint;
constexpr int fewRows = 5; // that a group has at most which stays on one page

double runningTitleHeight() { return heightOf(TextStyle::Small) * 1.4; }
double continuedHeight() { return heightOf(TextStyle::GroupName) * 1.2; }
double fillInHeight() { return heightOf(TextStyle::Body) * 3; }
} // namespace

PageMaker::PageMaker(const ReportLayout &layout, const ReportLines &lines, const Paper &paper,
                     const PageTexts &texts, TakePage takePage)
    : m_layout(layout)
    , m_texts(texts)
    , m_takePage(std::move(takePage))
    , m_area(paper.area())
    , m_lineLayout(layout, lines, m_area)
    , m_columnTitles(m_lineLayout.columnTitles())
    , m_bottom(m_area.bottom() - footerRoom)
    , m_groups(static_cast<size_t>(layout.groups.size()))
    , m_open(layout.groups.size())
{
}

// --- lines --------------------------------------------------------------------------------------------------------

void PageMaker::add(const ReportLine &line)
{
    m_empty = false;
    const bool isTotal = line.band == Band::GroupTotal || line.band == Band::ReportTotal;
    const bool isRow = line.band == Band::Opening || line.band == Band::Detail;
    if (line.band == Band::GroupTotal && m_groups[static_cast<size_t>(line.group)].rows == 1)
        return;
    const bool staysWithLast = isTotal || m_last == Band::GroupHeading
        || (m_last == Band::Opening && line.band == Band::Detail && line.begins < 0);
    if (!staysWithLast || m_waiting.empty())
        beginBlock(line);
    if (line.band == Band::GroupHeading && m_layout.groups[line.group].onNewPage)
        m_waiting.back().newPage = true;
    m_waiting.back().lines.append(m_lineLayout.layOut(line));
    for (OpenGroup &group : m_groups)
        group.rows += isRow ? 1 : 0;
    m_last = line.band;
    placeFinished();
}

void PageMaker::beginBlock(const ReportLine &line)
{
    const size_t begins = line.begins < 0 ? m_groups.size() : static_cast<size_t>(line.begins);
    endGroups(begins);
    Block block{.continued = m_open};
    for (size_t group = begins; group < m_groups.size(); ++group) {
        block.continued[static_cast<qsizetype>(group)].clear();
        m_open[static_cast<qsizetype>(group)] = m_lineLayout.groupName(static_cast<int>(group), line);
        m_groups[group] = {.firstBlock = m_waiting.size()};
    }
    block.open = m_open;
    m_waiting.push_back(std::move(block));
}

void PageMaker::endGroups(size_t from)
{
    for (size_t group = m_groups.size(); group-- > from;)
        if (m_groups[group].rows > 0 && m_groups[group].rows <= fewRows)
            join(m_groups[group].firstBlock);
}

// Makes one of the blocks that wait, from the given one on, where a page can hold them.
void PageMaker::join(size_t firstBlock)
{
    double height = m_waiting[firstBlock].height();
    for (size_t i = firstBlock + 1; i < m_waiting.size(); ++i) {
        height += m_waiting[i].height();
        if (m_waiting[i].newPage)
            return;
    }
    if (height > roomOfPage())
        return;
    for (size_t i = firstBlock + 1; i < m_waiting.size(); ++i)
        m_waiting[firstBlock].lines += m_waiting[i].lines;
    m_waiting.resize(firstBlock + 1);
}

// All blocks but the last, which may get further lines, and those of a group that may stay one of a few rows.
void PageMaker::placeFinished()
{
    size_t finished = m_waiting.size() - 1;
    for (const OpenGroup &group : m_groups)
        if (group.rows <= fewRows)
            finished = std::min(finished, group.firstBlock);
    for (size_t i = 0; i < finished; ++i)
        place(m_waiting[i]);
    m_waiting.erase(m_waiting.begin(), m_waiting.begin() + static_cast<std::ptrdiff_t>(finished));
    for (OpenGroup &group : m_groups)
        group.firstBlock -= std::min(group.firstBlock, finished);
}

void PageMaker::finish()
{
    endGroups(0);
    for (const Block &block : m_waiting)
        place(block);
    m_waiting.clear();
    if (m_empty) {
        beginPage({});
        LaidLine line{heightOf(TextStyle::Body) * 2};
        line.addText(m_area.left(), baseline(TextStyle::Body, heightOf(TextStyle::Body)), TextStyle::Body,
                     PrintingTexts::tr("There is nothing to show."), m_area.width());
        placeLine(line);
    }
    endPage();
}

// --- pages --------------------------------------------------------------------------------------------------------

double PageMaker::Block::height() const
{
    double height = 0;
    for (const LaidLine &line : lines)
        height += line.height;
    return height;
}

void PageMaker::place(const Block &block)
{
    if (m_onPage && (block.newPage || m_y + block.height() > m_bottom))
        endPage();
    if (!m_onPage)
        beginPage(block.continued);
    for (const LaidLine &line : block.lines)
        placeInParts(line, block.open);
}

// A block may be longer than a page, and so may a line.
void PageMaker::placeInParts(LaidLine line, const QStringList &open)
{
    while (m_y + line.height > m_bottom) {
        if (m_pageIsFresh)
            placeLine(line.takeTop(m_bottom - m_y));
        endPage();
        beginPage(open);
    }
    placeLine(line);
}

double PageMaker::roomOfPage() const
{
    return m_bottom - m_area.top() - runningTitleHeight() - (m_layout.toFillIn.isEmpty() ? 0 : fillInHeight())
        - m_columnTitles.height - continuedHeight();
}

void PageMaker::placeLine(const LaidLine &line)
{
    for (TextItem text : line.texts) {
        text.y += static_cast<float>(m_y);
        m_page.texts.append(std::move(text));
    }
    for (Fill fill : line.fills) {
        fill.area.translate(0, m_y);
        m_page.fills.append(fill);
    }
    m_y += line.height;
    m_pageIsFresh = false;
}

void PageMaker::beginPage(const QStringList &continued)
{
    m_onPage = true;
    ++m_pages;
    m_page = {};
    m_y = m_area.top();
    if (m_pages == 1)
        addTitle();
    else
        addRunningTitle();
    addLinesToFillIn();
    placeLine(m_columnTitles);
    addContinued(continued);
    m_pageIsFresh = true;
}

void PageMaker::addContinued(QStringList names)
{
    names.removeAll(QString());
    if (names.isEmpty())
        return;
    const TextMeasure &measure = TextMeasure::of(TextStyle::GroupName);
    const QString ending = PrintingTexts::tr("%1 (continued)");
    const QString text = measure.cut(names.join(u" · "_s), m_area.width() - measure.width(ending));
    LaidLine line{continuedHeight()};
    line.addText(m_area.left(), baseline(TextStyle::GroupName, 0), TextStyle::GroupName, ending.arg(text),
                 m_area.width());
    placeLine(line);
}

void PageMaker::endPage()
{
    m_onPage = false;
    rule(m_area.bottom() - heightOf(TextStyle::Small) * 1.3, thinRule, m_area.left(), m_area.right());
    m_page.texts.append({static_cast<float>(m_area.left()), static_cast<float>(m_area.bottom()), TextStyle::Small,
                         1, m_texts.printed});
    m_takePage(m_page);
}

void PageMaker::addTitle()
{
    const TextMeasure &heading = TextMeasure::of(TextStyle::Heading);
    LaidLine title{heightOf(TextStyle::Title)};
    const double y = baseline(TextStyle::Title, 0);
    const QString organization = heading.cut(m_texts.organization, m_area.width() * 0.45);
    const double organizationLeft = m_area.right() - heading.width(organization);
    title.addText(organizationLeft, y, TextStyle::Heading, organization, m_area.width());
    title.addText(m_area.left(), y, TextStyle::Title, m_layout.title, organizationLeft - m_area.left() - columnGap);
    placeLine(title);
    for (const QString &text : m_layout.headings) {
        for (const QString &part : text.isEmpty() ? QStringList() : heading.wrapped(text, m_area.width())) {
            LaidLine line{heading.lineHeight()};
            line.addText(m_area.left(), baseline(TextStyle::Heading, 0), TextStyle::Heading, part, m_area.width());
            placeLine(line);
        }
    }
    m_y += heading.lineHeight() * 0.6;
}

void PageMaker::addRunningTitle()
{
    LaidLine line{runningTitleHeight()};
    QStringList parts = m_layout.headings;
    parts.prepend(m_layout.title);
    parts.removeAll(QString());
    line.addText(m_area.left(), baseline(TextStyle::Small, 0), TextStyle::Small, parts.join(u" · "_s),
                 m_area.width());
    placeLine(line);
}

// Side by side, each with the same share of the width.
void PageMaker::addLinesToFillIn()
{
    const QStringList &words = m_layout.toFillIn;
    if (words.isEmpty())
        return;
    const TextMeasure &measure = TextMeasure::of(TextStyle::Body);
    const double y = measure.lineHeight() * 2;
    const double share = m_area.width() / static_cast<double>(words.size());
    LaidLine line{fillInHeight()};
    for (qsizetype i = 0; i < words.size(); ++i) {
        const double left = m_area.left() + share * static_cast<double>(i);
        const double lineLeft = left + measure.width(words[i]) + columnGap;
        line.addText(left, y, TextStyle::Body, words[i], share);
        line.fills.append({QRectF(lineLeft, y, std::max(0.0, left + share - 2 * columnGap - lineLeft), thinRule)});
    }
    placeLine(line);
}

void PageMaker::rule(double y, double thickness, double left, double right)
{
    m_page.fills.append({QRectF(left, y, right - left, thickness), true});
}

} // namespace Tallymere::Printing
