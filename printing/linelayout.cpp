#include "printing/linelayout.h"

#include "printing/barcode.h"
#include "printing/texts.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tallymere::Printing {

namespace {

constexpr double indent = 10 * unitsPerPoint; // for each group around a line
const QString between = u"  "_s; // the names of a group
constexpr double afterWrapped = 3 * unitsPerPoint; // tells a row of several lines from the next

// A box of thin lines.
QList<Fill> boxFills(const QRectF &room)
{
    return {{QRectF(room.topLeft(), QSizeF(room.width(), thinRule))},
            {QRectF(room.left(), room.bottom() - thinRule, room.width(), thinRule)},
            {QRectF(room.topLeft(), QSizeF(thinRule, room.height()))},
            {QRectF(room.right() - thinRule, room.top(), thinRule, room.height())}};
}

} // namespace

LineLayout::LineLayout(const ReportLayout &layout, const ReportLines &lines, const QRectF &area)
    : m_layout(layout)
    , m_lines(lines)
    , m_area(area)
{
    placeColumns();
}

void LineLayout::placeColumns()
{
    const std::vector<double> widths = columnWidths();
    double left = m_area.left();
    for (size_t i = 0; i < widths.size(); ++i) {
        const Column &column = m_layout.columns[static_cast<qsizetype>(i)];
        m_columns.push_back(
            {&column, m_lines.indexOf(column.field), m_lines.indexOf(column.opening.field), left,
             widths[i] - columnGap,
             column.align == Align::Decimal ? TextMeasure::of(TextStyle::Body).width(column.fraction) : 0});
        left += widths[i];
    }
    if (m_columns.empty())
        return;
    m_columns.back().width += columnGap; // up to the margin
    m_columns.front().left += firstInset();
    m_columns.front().width -= firstInset();
}

// By their shares. A title in a language of long words takes the room for its longest word from columns that have some to
// spare, each as it has.
std::vector<double> LineLayout::columnWidths() const
{
    double shares = 0;
    double shared = m_area.width();
    for (const Column &column : m_layout.columns) {
        if (column.room > 0)
            shared -= widthOf(column, 0);
        else
            shares += column.width;
    }
    std::vector<double> widths;
    std::vector<double> spare;
    double wanted = 0;
    double spared = 0;
    for (const Column &column : m_layout.columns) {
        widths.push_back(widthOf(column, shared / shares));
        const double rest = widths.back() - roomForTitle(column);
        wanted += std::max(0.0, -rest);
        spared += std::max(0.0, rest);
        spare.push_back(rest);
    }
    const double moved = std::min(wanted, spared);
    for (size_t i = 0; i < widths.size() && moved > 0; ++i)
        widths[i] -= spare[i] * moved / (spare[i] > 0 ? spared : wanted);
    return widths;
}

// For the longest word of its title and the gap behind it.
double LineLayout::roomForTitle(const Column &column) const
{
    double room = 0;
    for (const QString &word : column.title.split(u' '))
        room = std::max(room, TextMeasure::of(TextStyle::ColumnTitle).width(word));
    return room + columnGap + (&column == &m_layout.columns.constFirst() ? firstInset() : 0);
}

// Rows stand below the headings of their groups.
double LineLayout::firstInset() const
{
    const Column &first = m_layout.columns.constFirst();
    const bool beginsRows = first.inDetail || !first.opening.field.isEmpty();
    if (first.align != Align::Left || !beginsRows || first.content == Content::Barcode)
        return 0;
    return indent * static_cast<double>(std::ranges::count(m_layout.groups, true, &Group::heading));
}

double LineLayout::widthOf(const Column &column, double share) const
{
    constexpr double most = 0.45; // of the line
    return column.room > 0 ? std::min(column.room + columnGap, m_area.width() * most) : column.width * share;
}

QList<LineLayout::Name> LineLayout::groupNames(int group, const ReportLine &line) const
{
    QList<Name> names;
    for (const QString &field : m_layout.groups[group].fields)
        if (const QString text = line.values[static_cast<size_t>(m_lines.indexOf(field))].toText(); !text.isEmpty())
            names.append({field, text});
    return names.isEmpty() ? QList<Name>{{{}, PrintingTexts::tr("(none)")}} : names;
}

QString LineLayout::groupName(int group, const ReportLine &line) const
{
    QStringList texts;
    for (const Name &name : groupNames(group, line))
        texts.append(name.text);
    return texts.join(between);
}

LaidLine LineLayout::layOut(const ReportLine &line) const
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

LaidLine LineLayout::groupHeading(const ReportLine &line) const
{
    const double above = heightOf(TextStyle::GroupName) * (line.group == 0 ? 0.6 : 0.3);
    LaidLine laid{above + heightOf(TextStyle::GroupName) * 1.1};
    const TextMeasure &measure = TextMeasure::of(TextStyle::GroupName);
    double left = m_area.left() + indent * line.group;
    QString text;
    const auto flush = [&](double next) {
        laid.addText(left, baseline(TextStyle::GroupName, above), TextStyle::GroupName, text,
                     m_area.right() - left);
        left = next;
        text.clear();
    };
    for (const auto &[field, name] : groupNames(line.group, line)) {
        const double place = headingLeft(field);
        if (!text.isEmpty() && left + measure.width(text + between) < place)
            flush(place);
        text += (text.isEmpty() ? QString() : between) + name;
    }
    flush(left);
    return laid;
}

// Where a name in a heading begins: below the title of the column that only headings fill with it.
double LineLayout::headingLeft(const QString &field) const
{
    const auto place = std::ranges::find_if(m_columns, [&](const PlacedColumn &candidate) {
        return candidate.column->field == field && !candidate.column->inDetail;
    });
    return place == m_columns.end() ? 0 : place->left;
}

// A title stands above the headings that fill its column, which begin left of their rows.
double LineLayout::titleLeft(const PlacedColumn &place) const
{
    if (place.column->inDetail)
        return place.left;
    for (qsizetype group = 0; group < m_layout.groups.size(); ++group)
        if (m_layout.groups[group].heading && m_layout.groups[group].fields.startsWith(place.column->field))
            return m_area.left() + indent * static_cast<double>(group);
    return place.left;
}

QString LineLayout::cellText(const PlacedColumn &place, const ReportLine &line) const
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

LaidLine LineLayout::cells(const ReportLine &line) const
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
        laid.moveDown(heightOf(style) * 0.4);
    constexpr double roomAtRules = 6 * unitsPerPoint;
    laid.stretch(std::max(m_layout.rowHeight * unitsPerPoint, m_layout.rowRules ? laid.height + roomAtRules : 0));
    addContents(laid, texts);
    if (m_layout.rowRules)
        laid.fills.append({QRectF(m_area.left(), laid.height - thinRule / 2, m_area.width(), thinRule / 2), true});
    return laid;
}

void LineLayout::addCell(LaidLine &line, const PlacedColumn &place, const QString &text, TextStyle style) const
{
    if (text.isEmpty())
        return;
    const TextMeasure &measure = TextMeasure::of(style);
    const double top = baseline(style, 0);
    if (place.column->align == Align::Left) {
        if (!place.column->wraps)
            return line.addText(place.left, top, style, text, place.width);
        const QStringList parts = measure.wrapped(text, place.width);
        for (qsizetype i = 0; i < parts.size(); ++i)
            line.addText(place.left, top + static_cast<double>(i) * measure.lineHeight(), style, parts[i],
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

// Bars and boxes, which fill the row.
void LineLayout::addContents(LaidLine &line, const QStringList &texts) const
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

// The bars with the text below; by itself where there are none for it.
void LineLayout::addBarcode(LaidLine &line, const PlacedColumn &place, const QString &text,
                            const QRectF &room) const
{
    const double textHeight = heightOf(TextStyle::Body);
    const double between = 2 * unitsPerPoint;
    const QList<Fill> bars = barcodeFills(barcodeOf(text), room.adjusted(0, 0, 0, -textHeight - between));
    LaidLine cell{textHeight};
    addCell(cell, place, text, TextStyle::Body);
    if (bars.isEmpty())
        cell.stretch(line.height);
    else
        for (TextItem &item : cell.texts)
            item.y += static_cast<float>(room.bottom() - textHeight);
    line.fills += bars;
    line.texts += cell.texts;
}

LaidLine LineLayout::total(const ReportLine &line) const
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
        labelRight = std::min(labelRight, place.left - columnGap);
        const Engine::Value &sum = line.values[static_cast<size_t>(place.field)];
        addCell(laid, place, place.column->display ? place.column->display(sum) : sum.toText(), style);
        if (!row)
            laid.fills.append({QRectF(place.left, -above / 2, place.width, report ? thickRule : thinRule)});
    }
    laid.moveDown(above);
    const double left = m_area.left() + (report ? 0 : indent * line.group);
    const QString text = report ? m_layout.reportTotalText : totalText(line, style, labelRight - left);
    laid.addText(left, baseline(style, above), style, text, labelRight - left);
    laid.height = above + heightOf(style) * (report ? 1.3 : row ? 1.0 : 1.15);
    return laid;
}

// With the first name alone, which is the number, where there is no room for all of them.
QString LineLayout::totalText(const ReportLine &line, TextStyle style, double room) const
{
    const QString &text = m_layout.groups[line.group].totalText;
    const QString whole = text.arg(groupName(line.group, line));
    return TextMeasure::of(style).width(whole) <= room ? whole
                                                       : text.arg(groupNames(line.group, line).constFirst().text);
}

// Above numbers the title ends where their second decimal does: most have no more.
double LineLayout::titleRight(const PlacedColumn &place)
{
    const double decimals = TextMeasure::of(TextStyle::Body).width(place.column->fraction.left(3));
    const double right = place.left + place.width;
    return place.column->align == Align::Decimal ? right - place.fraction + decimals : right;
}

LaidLine LineLayout::columnTitles() const
{
    const TextMeasure &measure = TextMeasure::of(TextStyle::ColumnTitle);
    LaidLine line;
    qsizetype most = 1;
    std::vector<QStringList> titles;
    for (const PlacedColumn &place : m_columns) {
        titles.push_back(measure.wrapped(place.column->title, place.width));
        most = std::max(most, titles.back().size());
    }
    for (size_t i = 0; i < m_columns.size(); ++i) {
        const PlacedColumn &place = m_columns[i];
        const QStringList &parts = titles[i];
        for (qsizetype n = 0; n < parts.size(); ++n) { // the last ones stand on one line
            const double top = static_cast<double>(most - parts.size() + n) * measure.lineHeight();
            const double x =
                place.column->align == Align::Left ? titleLeft(place) : titleRight(place) - measure.width(parts[n]);
            line.addText(x, baseline(TextStyle::ColumnTitle, top), TextStyle::ColumnTitle, parts[n],
                         place.width + columnGap);
        }
    }
    line.height = static_cast<double>(most) * measure.lineHeight() + 5 * unitsPerPoint;
    line.fills.append({QRectF(m_area.left(), line.height - 4 * unitsPerPoint, m_area.width(), thinRule)});
    return line;
}

} // namespace Tallymere::Printing
