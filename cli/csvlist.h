#pragma once

#include "engine/dataset.h"
#include "frame/shared/prompts.h"

#include <QString>
#include <QStringList>

class QIODevice;

namespace Tallymere {

// Writes the columns of every row, under their names, in the set's order. Rows are read in windows, so that memory
// follows the keys of the set and not its rows. The set is open.
void writeCsvList(const Engine::DataSet &rows, const QStringList &columns, QIODevice &output, Progress &progress);

// Applies the expression as the set's filter, unless it is empty. A bad one throws EngineError, BadExpression.
void filterBy(Engine::DataSet &rows, const QString &expression);

} // namespace Tallymere
