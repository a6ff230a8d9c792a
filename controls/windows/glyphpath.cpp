#include "controls/windows/glyphpath.h"

#include <QRegularExpression>
#include <QXmlStreamReader>
#include <vector>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

using Numbers = std::vector<double>;

// Of one command with as many numbers as it takes; false for another one.
bool draw(QPainterPath &path, QChar command, const Numbers &at)
{
    const QPointF from = path.currentPosition();
    if (command == u'M' && at.size() == 2)
        path.moveTo(at[0], at[1]);
    else if (command == u'L' && at.size() == 2)
        path.lineTo(at[0], at[1]);
    else if (command == u'H' && at.size() == 1)
        path.lineTo(at[0], from.y());
    else if (command == u'V' && at.size() == 1)
        path.lineTo(from.x(), at[0]);
    else if (command == u'C' && at.size() == 6)
        path.cubicTo(at[0], at[1], at[2], at[3], at[4], at[5]);
    else if (command == u'Z' && at.empty())
        path.closeSubpath();
    else
        return false;
    return true;
}

bool addPath(QPainterPath &path, const QString &data)
{
    static const QRegularExpression step(u"([A-Za-z])([^A-Za-z]*)"_s);
    static const QRegularExpression number(u"-?[0-9]*\\.?[0-9]+"_s);
    for (auto steps = step.globalMatch(data); steps.hasNext();) {
        const QRegularExpressionMatch found = steps.next();
        Numbers numbers;
        for (auto each = number.globalMatch(found.captured(2)); each.hasNext();)
            numbers.push_back(each.next().captured().toDouble());
        if (!draw(path, found.captured(1).front(), numbers))
            return false;
    }
    return true;
}

} // namespace

QPainterPath glyphPath(QIODevice &svg)
{
    QPainterPath path;
    QXmlStreamReader reader(&svg);
    while (reader.readNextStartElement()) {
        if (reader.name() == "svg"_L1)
            continue; // into it
        if (reader.name() != "path"_L1 || !addPath(path, reader.attributes().value("d"_L1).toString()))
            return {};
        reader.skipCurrentElement();
    }
    return reader.hasError() ? QPainterPath() : path;
}

} // namespace Tallymere
