#include "printing/pagemaker.h"

#include "printing/barcode.h"
#include "printing/texts.h"

#include <algorithm>
#include <cmath>
#include <iterator>

using namespace Qt::StringLiterals;

namespace Tallymere::Printing {

namespace {

constexpr double gap = 6 * unitsPerPoint; // between columns
constexpr double indent = 10 * unitsPerPoint; // for each group around a line
constexpr double afterWrapped = 3 * unitsPerPoint; // tells a row of several lines from the next
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
    if (m_columns.empty())
        return;
    m_columns.back().width += gap; // up to the margin
    PlacedColumn &first = m_columns.front();
    if (first.column->align != Align::Left || !first.column->inDetail || first.column->content == Content::Barcode)
        return;
    const double inset = indent * static_cast<double>(std::ranges::count(m_layout.groups, true, &Group::heading));
    first.left += inset; // rows stand below the headings of their groups
    first.width -= inset;
}

// --- lines --------------------------------------------------------------------------------------------------------

void PageMaker::add(const ReportLine &line)
{
    m_empty = false;
    const bool isTotal = line.band == Band::GroupTotal || line.band == Band::ReportTotal;
    const bool staysWithLast =
        isTotal || m_last == Band::GroupHeading || (m_last == Band::Opening && line.band == Band::Detail);
    if (!staysWithLast) {
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
    m_last = line.band;
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
    return names.isEmpty() ? PrintingTexts::tr("(none)") : names.join("  "_L1);
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

// Bars and boxes, which fill the row.
void PageMaker::addContents(LaidLine &line, const QStringList &texts) const
{
    constexpr double space = 4 * unitsPerPoint; // above and below
    for (size_t i = 0; i < m_columns.size(); ++i) {
        const PlacedColumn &place = m_columns[i];
        const QRectF room(place.left, space, place.width, line.height - 2 * space);
        if (place.column->content == Content::Barcode)
            addBarcode(line, place, texts[static_cast<qsizetype>(i)], room);
        else if (place.column->content == Content::Blank)
            line.fills += boxFills(room);
    }
}

PageMaker::LaidLine PageMaker::cells(const ReportLine &line) const
{
    const bool opening = line.band == Band::Opening;
    const TextStyle style = opening ? TextStyle::Strong : TextStyle::Body;
    LaidLine laid{heightOf(style)};
    QStringList texts;
    for (const PlacedColumn &place : m_columns)
        texts.append(cellText(place, line));
    for (size_t i = 0; i < m_columns.size(); ++i) {
        PlacedColumn place = m_columns[i];
        // What names an account has the room of the columns that it leaves empty.
        for (size_t next = i + 1; opening && place.column->align == Align::Left && next < m_columns.size()
             && texts[static_cast<qsizetype>(next)].isEmpty();
             ++next)
            place.width = m_columns[next].left + m_columns[next].width - place.left;
        if (place.column->content == Content::Text)
            addCell(laid, place, texts[static_cast<qsizetype>(i)], style);
    }
    if (opening)
        moveDown(laid, heightOf(style) * 0.4);
    constexpr double roomAtRules = 6 * unitsPerPoint;
    stretchRow(laid,
               std::max(m_layout.rowHeight * unitsPerPoint, m_layout.rowRules ? laid.height + roomAtRules : 0));
    addContents(laid, texts);
    if (m_layout.rowRules)
        laid.fills.append({QRectF(m_area.left(), laid.height - thin / 2, m_area.width(), thin / 2), true});
    return laid;
}

void PageMaker::moveDown(LaidLine &line, double by)
{
    line.height += by;
    for (TextItem &text : line.texts)
        text.y += static_cast<float>(by);
    for (Fill &fill : line.fills)
        fill.area.translate(0, by);
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
        if (parts.size() > 1)
            line.height =
                std::max(line.height, static_cast<double>(parts.size()) * measure.lineHeight() + afterWrapped);
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

PageMaker::LaidLine PageMaker::total(const ReportLine &line) const
{
    const bool report = line.band == Band::ReportTotal;
    // Where only totals are shown, the innermost are the rows of the report.
    const bool row = !m_layout.details && line.group == m_layout.groups.size() - 1 && !report;
    const TextStyle style = row ? TextStyle::Body : TextStyle::Strong;
    const double above = row ? 0 : heightOf(style) * (report ? 0.5 : 0.3);
    LaidLine laid;
    double labelRight = m_area.right();
    for (const PlacedColumn &place : m_columns) {
        if (!m_lines.isSummed(place.field, line.band))
            continue;
        labelRight = std::min(labelRight, place.left - gap);
        const Engine::Value &sum = line.values[static_cast<size_t>(place.field)];
        addCell(laid, place, place.column->display ? place.column->display(sum) : sum.toText(), style);
        if (!row)
            laid.fills.append({QRectF(place.left, -above / 2, place.width, report ? thick : thin)});
    }
    moveDown(laid, above);
    const QString label =
        report ? m_layout.reportTotalText : m_layout.groups[line.group].totalText.arg(groupName(line.group, line));
    const double left = m_area.left() + (report ? 0 : indent * line.group);
    addText(laid, left, baseline(style, above), style, label, labelRight - left);
    laid.height = above + heightOf(style) * (report ? 1.3 : row ? 1.0 : 1.15);
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
    if (m_onPage && (block.newPage || m_y + height > m_bottom))
        endPage();
    if (!m_onPage)
        beginPage(block.continued);
    for (const LaidLine &line : block.lines)
        placeInParts(line);
}

// A block may be longer than a page, and so may a line.
void PageMaker::placeInParts(LaidLine line)
{
    while (m_y + line.height > m_bottom) {
        if (m_pageIsFresh)
            placeLine(takeTop(line, m_bottom - m_y));
        endPage();
        beginPage(m_open);
    }
    placeLine(line);
}

PageMaker::LaidLine PageMaker::takeTop(LaidLine &line, double room)
{
    const double step = heightOf(TextStyle::Body);
    LaidLine top{std::max(std::floor(room / step), 1.0) * step};
    const auto isBelow = [&top](const TextItem &text) { return text.y > top.height; };
    std::ranges::remove_copy_if(line.texts, std::back_inserter(top.texts), isBelow);
    line.texts.removeIf([&isBelow](const TextItem &text) { return !isBelow(text); });
    for (TextItem &text : line.texts)
        text.y -= static_cast<float>(top.height);
    for (Fill &fill : line.fills) {
        fill.area.translate(0, -top.height);
        fill.area.setTop(std::max(0.0, fill.area.top()));
    }
    line.height -= top.height;
    return top;
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
    addColumnTitles();

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
    LaidLine line{measure.lineHeight() * 1.2};
    addText(line, m_area.left(), baseline(TextStyle::GroupName, 0), TextStyle::GroupName, ending.arg(text),
            m_area.width());
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
        for (const QString &part : text.isEmpty() ? QStringList() : heading.wrapped(text, m_area.width())) {
            LaidLine line{heading.lineHeight()};
            addText(line, m_area.left(), baseline(TextStyle::Heading, 0), TextStyle::Heading, part, m_area.width());
            placeLine(line);
        }
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

// Above numbers the title ends where their second decimal does: most have no more.
double PageMaker::titleRight(const PlacedColumn &place)
{
    const double decimals = TextMeasure::of(TextStyle::Body).width(place.column->fraction.left(3));
    const double right = place.left + place.width;
    return place.column->align == Align::Decimal ? right - place.fraction + decimals : right;
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
                const double x =
                    place.column->align == Align::Left ? place.left : titleRight(place) - measure.width(lines[n]);
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
