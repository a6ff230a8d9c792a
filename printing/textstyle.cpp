#include "printing/textstyle.h"

#include "printing/page.h"

#include <algorithm>
#include <QFontMetricsF>

using namespace Qt::StringLiterals;

namespace Tallymere::Printing {

namespace {

struct Look
{
    double points;
    QFont::Weight weight;
};

constexpr Look looks[textStyleCount] = {
    {15, QFont::Bold}, // Title
    {10, QFont::Normal}, // Heading
    {8.5, QFont::Bold}, // ColumnTitle
    {9.5, QFont::Bold}, // GroupName
    {9, QFont::Normal}, // Body
    {9, QFont::Bold}, // Strong
    {8, QFont::Normal}, // Small
};

constexpr double lineSpacing = 1.25; // of the size

QFont makeFont(const Look &look)
{
    // Sans serif faces of the same widths, whose figures are all as wide as each other.
    QFont font(QStringList{u"Liberation Sans"_s, u"Arial"_s, u"Helvetica"_s, u"DejaVu Sans"_s});
    font.setPixelSize(qRound(look.points * unitsPerPoint));
    font.setWeight(look.weight);
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::PreferOutline);
    return font;
}

} // namespace

const QFont &fontOf(TextStyle style)
{
    static const auto fonts = [] {
        std::array<QFont, textStyleCount> all;
        std::ranges::transform(looks, all.begin(), makeFont);
        return all;
    }();
    return fonts[static_cast<size_t>(style)];
}

const TextMeasure &TextMeasure::of(TextStyle style)
{
    static const auto measures = [] {
        std::vector<TextMeasure> all;
        all.reserve(textStyleCount);
        for (int i = 0; i < textStyleCount; ++i)
            all.push_back(TextMeasure(static_cast<TextStyle>(i)));
        return all;
    }();
    return measures[static_cast<size_t>(style)];
}

TextMeasure::TextMeasure(TextStyle style)
    : m_style(style)
    , m_ascent(QFontMetricsF(fontOf(style)).ascent())
    , m_lineHeight(looks[static_cast<size_t>(style)].points * unitsPerPoint * lineSpacing)
{
    m_widths.fill(-1);
}

double TextMeasure::widthOf(QChar letter) const
{
    float &width = m_widths[letter.unicode()];
    if (width < 0)
        width = static_cast<float>(QFontMetricsF(fontOf(m_style)).horizontalAdvance(letter));
    return width;
}

double TextMeasure::width(const QString &text) const
{
    if (std::ranges::all_of(text, [](QChar letter) { return letter.unicode() < simpleLetters; })) {
        double sum = 0;
        for (const QChar letter : text)
            sum += widthOf(letter);
        return sum;
    }
    constexpr qsizetype mostKept = 10'000;
    if (m_wholes.size() > mostKept)
        m_wholes.clear();
    if (const auto known = m_wholes.constFind(text); known != m_wholes.cend())
        return *known;
    return *m_wholes.insert(text, QFontMetricsF(fontOf(m_style)).horizontalAdvance(text));
}

qsizetype TextMeasure::fitting(const QString &text, double room) const
{
    qsizetype low = 0;
    qsizetype high = text.size();
    while (low < high) {
        const qsizetype middle = (low + high + 1) / 2;
        if (width(text.left(middle)) <= room)
            low = middle;
        else
            high = middle - 1;
    }
    // Never between the halves of one letter.
    if (low > 0 && low < text.size() && text[low].isLowSurrogate())
        --low;
    return low;
}

QString TextMeasure::cut(const QString &text, double room) const
{
    QString line = text;
    line.replace(u'\n', u' ');
    if (width(line) <= room)
        return line;
    return line.left(fitting(line, room - width(u"…"_s))).trimmed() + u'…';
}

QStringList TextMeasure::wrapped(const QString &text, double room) const
{
    QStringList lines;
    if (!text.contains(u'\n') && width(text) <= room)
        return {text};
    for (const QString &paragraph : text.trimmed().split(u'\n'))
        wrapParagraph(paragraph.trimmed(), room, lines);
    return lines;
}

void TextMeasure::wrapParagraph(QString text, double room, QStringList &lines) const
{
    while (width(text) > room) {
        const qsizetype most = qMax<qsizetype>(1, fitting(text, room));
        qsizetype end = text[most].isSpace() ? most : text.left(most).lastIndexOf(u' ');
        if (end <= 0)
            end = most;
        lines.append(text.left(end).trimmed());
        text = text.mid(end).trimmed();
        if (text.isEmpty())
            return;
    }
    lines.append(text);
}

} // namespace Tallymere::Printing
