#pragma once

#include <QFont>
#include <QHash>
#include <QString>
#include <QStringList>

namespace Tallymere::Printing {

enum class TextStyle : quint8 { Title, Heading, ColumnTitle, GroupName, Body, Strong, Small };
constexpr int textStyleCount = 7;

// The font of a style, in units of the page: its size does not depend on the device, so that lines break alike on
// screen, printer and PDF.
const QFont &fontOf(TextStyle style);

// How much room texts of a style take, in units of the page. Widths are summed from those of letters, which is what
// drawing gives (without kerning) and costs a fraction of it; scripts whose letters join are measured as a whole, once
// for each text. Needs the fonts of a QGuiApplication.
class TextMeasure
{
public:
    static const TextMeasure &of(TextStyle style);

    double width(const QString &text) const;
    double ascent() const { return m_ascent; }
    double lineHeight() const { return m_lineHeight; }

    // Cut to the width, with an ellipsis where something is missing.
    QString cut(const QString &text, double width) const;
    // Lines no wider than the width: broken at blanks, within a word only when that alone is too wide. A line break of
    // the text breaks as well.
    QStringList wrapped(const QString &text, double width) const;

private:
    explicit TextMeasure(TextStyle style);
    double widthOf(QChar letter) const;
    void wrapParagraph(QString text, double width, QStringList &lines) const;
    qsizetype fitting(const QString &text, double width) const; // how many letters from the beginning

    static constexpr int simpleLetters = 0x250; // Latin without joining
    TextStyle m_style;
    double m_ascent = 0;
    double m_lineHeight = 0;
    mutable std::array<float, simpleLetters> m_widths;
    mutable QHash<QString, double> m_wholes;
};

} // namespace Tallymere::Printing
