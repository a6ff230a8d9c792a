#include "printing/pagemaker.h"

#include "printing/barcode.h"
#include "printing/texts.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tallymere::Printing {

namespace {

constexpr double gap = 6 * unitsPerPoint; // between columns
constexpr double indent = 10 * unitsPerPoint; // of a total, for each group around it
constexpr double thin = 0.5 * unitsPerPoint;
constexpr double thick = 1.2 * unitsPerPoint;
constexpr double footerRoom = 20 * unitsPerPoint;

double heightOf(TextStyle style) { return TextMeasure::of(style).lineHeight(); }

// A box of thin lines.
QList<Fill> boxFills(const QRectF &room)
{
    return {{QRectF(room.topLeft(), QSizeF(room.width(), thin))},
            {QRectF(room.left(), room.bottom() - thin, room.width(), thin)},
            {QRectF(room.topLeft(), QSizeF(thin, room.height()))},
            {QRectF(room.right() - thin, room.top(), thin, room.height())}};
}

// The baseline of a line of text whose upper edge is at the place.
double baseline(TextStyle style, double top)
{
    const TextMeasure &measure = TextMeasure::of(style);
    return top + measure.ascent() * 0.95;
}

} // namespace

PageMaker::PageMaker(const ReportLayout &layout, const ReportLines &lines, const Paper &paper,
                     const PageTexts &texts, TakePage takePage)
    : m_layout(layout)
    , m_lines(lines)
    , m_paper(paper)
    , m_texts(texts)
    , m_takePage(std::move(takePage))
    , m_area(m_paper.area())
    , m_bottom(m_area.bottom() - footerRoom)
    , m_open(layout.groups.size())
{
    placeColumns();
}

void PageMaker::placeColumns()
{
    double shares = 0;
    for (const Column &column : m_layout.columns)
        shares += column.width;
    double left = m_area.left();
    for (const Column &column : m_layout.columns) {
        const double width = m_area.width() * column.width / shares;
        m_columns.push_back(
            {&column, m_lines.indexOf(column.field), m_lines.indexOf(column.opening.field), left, width - gap,
             column.align == Align::Decimal ? TextMeasure::of(TextStyle::Body).width(column.fraction) : 0});
        left += width;
    }
    if (!m_columns.empty())
        m_columns.back().width += gap; // up to the margin
}

// --- lines --------------------------------------------------------------------------------------------------------

void PageMaker::add(const ReportLine &line)
{
    m_empty = false;
    const bool isTotal = line.band == Band::GroupTotal || line.band == Band::ReportTotal;
    if (!m_keepsNext && !isTotal) {
        place(m_block);
        m_block = {.continued = m_open};
    }
    if (line.band == Band::GroupHeading && m_layout.groups[line.group].onNewPage)
        m_block.newPage = true;
    for (qsizetype group = 0; group < m_open.size() && !isTotal; ++group)
        m_open[group] = groupName(static_cast<int>(group), line);
    // A group that begins with this block is not gone on with.
    for (qsizetype group = 0; group < m_open.size(); ++group)
        if (m_block.continued.value(group) != m_open[group])
            for (qsizetype inner = group; inner < m_block.continued.size(); ++inner)
                m_block.continued[inner].clear();
    m_block.lines.append(layOut(line));
    m_keepsNext = line.band == Band::GroupHeading || line.band == Band::Opening;
}

void PageMaker::finish()
{
    place(m_block);
    m_block = {};
    if (m_empty) {
        beginPage({});
        LaidLine line{heightOf(TextStyle::Body) * 2};
        addText(line, m_area.left(), baseline(TextStyle::Body, heightOf(TextStyle::Body)), TextStyle::Body,
                PrintingTexts::tr("There is nothing to show."), m_area.width());
        placeLine(line);
    }
    endPage();
}

QString PageMaker::groupName(int group, const ReportLine &line) const
{
    QStringList names;
    for (const QString &field : m_layout.groups[group].fields)
        if (const QString text = line.values[static_cast<size_t>(m_lines.indexOf(field))].toText(); !text.isEmpty())
            names.append(text);
    return names.join("  "_L1);
}

PageMaker::LaidLine PageMaker::layOut(const ReportLine &line) const
{
    switch (line.band) {
    case Band::GroupHeading:
        return groupHeading(line);
    case Band::GroupTotal:
    case Band::ReportTotal:
        return total(line);
    default:
        return cells(line);
    }
}

void PageMaker::addText(LaidLine &line, double x, double y, TextStyle style, const QString &text, double room)
{
    if (!text.isEmpty())
        line.texts.append(
            {static_cast<float>(x), static_cast<float>(y), style, 1, TextMeasure::of(style).cut(text, room)});
}

PageMaker::LaidLine PageMaker::groupHeading(const ReportLine &line) const
{
    const double above = heightOf(TextStyle::GroupName) * (line.group == 0 ? 0.6 : 0.3);
    LaidLine laid{above + heightOf(TextStyle::GroupName) * 1.1};
    const double left = m_area.left() + indent * line.group;
    addText(laid, left, baseline(TextStyle::GroupName, above), TextStyle::GroupName, groupName(line.group, line),
            m_area.right() - left);
    return laid;
}

QString PageMaker::cellText(const PlacedColumn &place, const ReportLine &line) const
{
    const Column &column = *place.column;
    int field = column.inDetail ? place.field : -1;
    if (line.band == Band::Opening) {
        if (!column.opening.text.isEmpty())
            return column.opening.text;
        field = place.openingField;
    }
    if (field < 0)
        return {};
    const Engine::Value &value = line.values[static_cast<size_t>(field)];
    return column.display ? column.display(value) : value.toText();
}

// The bars with the text below; by itself where there are none for it.
void PageMaker::addBarcode(LaidLine &line, const PlacedColumn &place, const QString &text, const QRectF &room) const
{
    const double textHeight = heightOf(TextStyle::Body);
    const double between = 2 * unitsPerPoint;
    const QList<Fill> bars = barcodeFills(barcodeOf(text), room.adjusted(0, 0, 0, -textHeight - between));
    LaidLine cell{textHeight};
    addCell(cell, place, text, TextStyle::Body);
    if (bars.isEmpty())
        stretchRow(cell, line.height);
    else
        for (TextItem &item : cell.texts)
            item.y += static_cast<float>(room.bottom() - textHeight);
    line.fills += bars;
    line.texts += cell.texts;
}

// To its least height, with the texts halfway down.
void PageMaker::stretchRow(LaidLine &row, double least)
{
    if (row.height >= least)
        return;
    for (TextItem &text : row.texts)
        text.y += static_cast<float>((least - row.height) / 2);
    row.height = least;
}

PageMaker::LaidLine PageMaker::cells(const ReportLine &line) const
{
    const TextStyle style = line.band == Band::Opening ? TextStyle::Strong : TextStyle::Body;
    LaidLine laid{heightOf(style)};
    for (const PlacedColumn &place : m_columns)
        if (place.column->content == Content::Text)
            addCell(laid, place, cellText(place, line), style);
    stretchRow(laid, m_layout.rowHeight * unitsPerPoint);
    constexpr double space = 4 * unitsPerPoint; // above and below what fills the row
    for (const PlacedColumn &place : m_columns) {
        const QRectF room(place.left, space, place.width, laid.height - 2 * space);
        if (place.column->content == Content::Barcode)
            addBarcode(laid, place, cellText(place, line), room);
        else if (place.column->content == Content::Blank)
            laid.fills += boxFills(room);
    }
    if (m_layout.rowRules)
        laid.fills.append({QRectF(m_area.left(), laid.height - thin / 2, m_area.width(), thin / 2), true});
    return laid;
}

void PageMaker::addCell(LaidLine &line, const PlacedColumn &place, const QString &text, TextStyle style) const
{
    if (text.isEmpty())
        return;
    const TextMeasure &measure = TextMeasure::of(style);
    const double top = baseline(style, 0);
    if (place.column->align == Align::Left) {
        if (!place.column->wraps)
            return addText(line, place.left, top, style, text, place.width);
        const QStringList parts = measure.wrapped(text, place.width);
        for (qsizetype i = 0; i < parts.size(); ++i)
            addText(line, place.left, top + static_cast<double>(i) * measure.lineHeight(), style, parts[i],
                    place.width);
        line.height = std::max(line.height, static_cast<double>(parts.size()) * measure.lineHeight());
        return;
    }
    const double width = measure.width(text);
    const double squeeze = std::min(1.0, place.width / width);
    double x = place.left + place.width - width * squeeze;
    if (place.column->align == Align::Decimal && squeeze == 1) {
        const qsizetype point = text.lastIndexOf(place.column->fraction.front());
        const double whole = measure.width(point < 0 ? text : text.left(point));
        x = std::clamp(place.left + place.width - place.fraction - whole, place.left, x);
    }
    line.texts.append({static_cast<float>(x), static_cast<float>(top), style, static_cast<float>(squeeze), text});
}

bool PageMaker::totalStartsAt(const PlacedColumn &place) const { return m_lines.isSummed(place.field); }

PageMaker::LaidLine PageMaker::total(const ReportLine &line) const
{
    const bool report = line.band == Band::ReportTotal;
    const double above = heightOf(TextStyle::Strong) * (report ? 0.5 : 0.3);
    LaidLine laid;
    double labelRight = m_area.right();
    for (const PlacedColumn &place : m_columns) {
        if (!totalStartsAt(place))
            continue;
        labelRight = std::min(labelRight, place.left);
        const Engine::Value &sum = line.values[static_cast<size_t>(place.field)];
        addCell(laid, place, place.column->display ? place.column->display(sum) : sum.toText(), TextStyle::Strong);
        if (report || m_layout.details)
            laid.fills.append({QRectF(place.left, 0, place.width, report ? thick : thin)});
    }
    for (TextItem &text : laid.texts)
        text.y += static_cast<float>(above);
    for (Fill &fill : laid.fills)
        fill.area.translate(0, above / 2);
    const QString label =
        report ? m_layout.reportTotalText : m_layout.groups[line.group].totalText.arg(groupName(line.group, line));
    const double left = m_area.left() + (report ? 0 : indent * line.group);
    addText(laid, left, baseline(TextStyle::Strong, above), TextStyle::Strong, label, labelRight - left);
    laid.height = above + heightOf(TextStyle::Strong) * (report ? 1.3 : 1.15);
    return laid;
}

// --- pages --------------------------------------------------------------------------------------------------------

void PageMaker::place(const Block &block)
{
    if (block.lines.isEmpty())
        return;
    double height = 0;
    for (const LaidLine &line : block.lines)
        height += line.height;
    if (!m_onPage)
        beginPage(block.continued);
    else if (block.newPage || m_y + height > m_bottom) {
        endPage();
        beginPage(block.continued);
    }
    for (const LaidLine &line : block.lines) {
        if (m_y + line.height > m_bottom) { // a block that is longer than a page
            endPage();
            beginPage(m_open);
        }
        placeLine(line);
    }
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
    addColumnTitles();

    QStringList names = continued;
    names.removeAll(QString());
    if (names.isEmpty())
        return;
    LaidLine line{heightOf(TextStyle::GroupName) * 1.2};
    addText(line, m_area.left(), baseline(TextStyle::GroupName, 0), TextStyle::GroupName,
            PrintingTexts::tr("%1 (continued)").arg(names.join(u" · "_s)), m_area.width());
    placeLine(line);
}

void PageMaker::endPage()
{
    m_onPage = false;
    rule(m_area.bottom() - heightOf(TextStyle::Small) * 1.3, thin, m_area.left(), m_area.right());
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
    addText(title, organizationLeft, y, TextStyle::Heading, organization, m_area.width());
    addText(title, m_area.left(), y, TextStyle::Title, m_layout.title, organizationLeft - m_area.left() - gap);
    placeLine(title);
    for (const QString &text : m_layout.headings) {
        if (text.isEmpty())
            continue;
        LaidLine line{heading.lineHeight()};
        addText(line, m_area.left(), baseline(TextStyle::Heading, 0), TextStyle::Heading, text, m_area.width());
        placeLine(line);
    }
    m_y += heading.lineHeight() * 0.6;
}

void PageMaker::addRunningTitle()
{
    LaidLine line{heightOf(TextStyle::Small) * 1.4};
    QStringList parts = m_layout.headings;
    parts.prepend(m_layout.title);
    parts.removeAll(QString());
    addText(line, m_area.left(), baseline(TextStyle::Small, 0), TextStyle::Small, parts.join(u" · "_s),
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
    LaidLine line{y + measure.lineHeight()};
    for (qsizetype i = 0; i < words.size(); ++i) {
        const double left = m_area.left() + share * static_cast<double>(i);
        const double lineLeft = left + measure.width(words[i]) + gap;
        addText(line, left, y, TextStyle::Body, words[i], share);
        line.fills.append({QRectF(lineLeft, y, std::max(0.0, left + share - 2 * gap - lineLeft), thin)});
    }
    placeLine(line);
}

void PageMaker::addColumnTitles()
{
    if (!m_columnTitles) {
        const TextMeasure &measure = TextMeasure::of(TextStyle::ColumnTitle);
        m_columnTitles = LaidLine();
        qsizetype most = 1;
        std::vector<QStringList> titles;
        for (const PlacedColumn &place : m_columns) {
            titles.push_back(measure.wrapped(place.column->title, place.width));
            most = std::max(most, titles.back().size());
        }
        for (size_t i = 0; i < m_columns.size(); ++i) {
            const PlacedColumn &place = m_columns[i];
            const QStringList &lines = titles[i];
            for (qsizetype n = 0; n < lines.size(); ++n) { // the last ones stand on one line
                const double top = static_cast<double>(most - lines.size() + n) * measure.lineHeight();
                const double x = place.column->align == Align::Left
                    ? place.left
                    : place.left + place.width - measure.width(lines[n]);
                addText(*m_columnTitles, x, baseline(TextStyle::ColumnTitle, top), TextStyle::ColumnTitle, lines[n],
                        place.width + gap);
            }
        }
        m_columnTitles->height = static_cast<double>(most) * measure.lineHeight() + 5 * unitsPerPoint;
        m_columnTitles->fills.append(
            {QRectF(m_area.left(), m_columnTitles->height - 4 * unitsPerPoint, m_area.width(), thin)});
    }
    placeLine(*m_columnTitles);
}

void PageMaker::rule(double y, double thickness, double left, double right)
{
    m_page.fills.append({QRectF(left, y, right - left, thickness), true});
}

} // namespace Tallymere::Printing
