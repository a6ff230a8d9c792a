#include "engine/values/linetext.h"

#include "engine/values/textsize.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

bool isControl(QChar character)
{
    const QChar::Category category = character.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line
        || category == QChar::Separator_Paragraph;
}

} // namespace

QString oneLine(const QString &text)
{
    if (std::none_of(text.begin(), text.end(), isControl))
        return text;
    QString line;
    line.reserve(text.size());
    bool inRun = false;
    for (const QChar character : text) {
        const bool control = isControl(character);
        if (!control)
            line += character;
        else if (!inRun)
            line += u' ';
        inRun = control;
    }
    return line;
}

QString excerpt(const QString &text)
{
    constexpr qsizetype most = 60;
    const QString mark = u"..."_s;
    const QString whole = text.trimmed();
    const auto lineEnd = std::find_if(whole.begin(), whole.end(), [](QChar character) {
        return character == u'\n' || character == u'\r' || character.category() == QChar::Separator_Line
            || character.category() == QChar::Separator_Paragraph;
    });
    const QString first = whole.left(lineEnd - whole.begin()).trimmed();
    if (lineEnd == whole.end() && characterCount(first) <= most)
        return first;
    return firstCharacters(first, most - mark.size()) + mark;
}

} // namespace Engine
