#include "controls/grids/listcopy.h"

#include "engine/records/rowwalk.h"
#include "engine/store/readmoment.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

bool needsQuotes(const QString &text)
{
    const auto separates = [](QChar c) { return c == u'\t' || c == u'\n' || c == u'\r'; };
    return text.startsWith(u'"') || std::any_of(text.begin(), text.end(), separates);
}

QString cell(QString text)
{
    if (!needsQuotes(text))
        return text;
    return u'"' + text.replace(u'"', "\"\""_L1) + u'"';
}

QString titles(const TableModel &model)
{
    QStringList titles;
    for (const GridColumn &column : model.columns())
        titles << cell(column.title);
    return titles.join(u'\t') + u'\n';
}

Engine::KeyList keysOf(const Engine::DataSet &set, const QList<RowRange> &rows)
{
    const qsizetype width = set.keyAt(0).size();
    Engine::KeyList keys(static_cast<int>(std::max<qsizetype>(width, 1)));
    for (const RowRange &range : rows)
        for (int row = range.first; row <= range.last; ++row)
            for (const qint64 number : set.keyAt(row))
                keys.append(number);
    return keys;
}

} // namespace

QString rowsAsText(const TableModel &model, const QList<RowRange> &rows, Progress &progress)
{
    Engine::ReadMoment moment(model.dataSet().database());
    Engine::RowWalk walk(model.dataSet(), moment, keysOf(model.dataSet(), rows));
    progress.start(walk.count());
    QString text = walk.count() > 1 ? titles(model) : QString();
    for (Engine::Row row; walk.next(row); progress.step()) {
        for (int column = 0; column < model.columnCount(); ++column) {
            if (column > 0)
                text += u'\t';
            text += cell(model.shownText(row, column));
        }
        text += u'\n';
    }
    moment.end();
    progress.finish();
    return text;
}

} // namespace Tallymere
