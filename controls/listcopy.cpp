#include "controls/listcopy.h"

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

} // namespace

QString rowsAsText(const TableModel &model, const QList<RowRange> &rows, Progress &progress)
{
    int count = 0;
    for (const RowRange &range : rows)
        count += range.count();
    progress.start(count);
    QString text = count > 1 ? titles(model) : QString();
    for (const RowRange &range : rows) {
        for (int row = range.first; row <= range.last; ++row) {
            for (int column = 0; column < model.columnCount(); ++column) {
                if (column > 0)
                    text += u'\t';
                text += cell(model.shownText(row, column));
            }
            text += u'\n';
            progress.step();
        }
    }
    progress.finish();
    return text;
}

} // namespace Tallymere
