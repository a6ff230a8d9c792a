#pragma once

#include "base/prompts.h"
#include "controls/grids/listgrid.h"

#include <QList>
#include <QString>

namespace Tallymere {

// Rows as spreadsheets paste them: cells as they are shown, separated by tabs, a line for each row. Several rows come
// under the columns' titles, one alone does not. A cell that holds a tab or a line break, or begins with a quote, is
// quoted. All are as they stand by now, at one moment; the cells of one that is gone are empty. Throws what the store
// raises.
QString rowsAsText(const TableModel &model, const QList<RowRange> &rows, Progress &progress);

} // namespace Tallymere
