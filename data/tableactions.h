#pragma once

#include "engine/records/tablereader.h"

#include <QList>
#include <QObject>
#include <QString>

namespace Tallymere {

// "O" opens, "R" refreshes and "C" closes the tables; any other letter does nothing. A closed table has nothing to
// refresh and is passed over.
void tables(const QString &action, const QList<Engine::TableReader *> &owned);
void tables(const QString &action, QObject &form); // those of the form; one that owns none is left alone

} // namespace Tallymere
