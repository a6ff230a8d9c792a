#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace Engine {

// A number for something that has a name only, the same on every machine: for locks.
quint64 stableNumber(const QByteArray &bytes);
inline quint64 stableNumber(const QString &text) { return stableNumber(text.toUtf8()); }
quint64 stableNumber(const QList<qint64> &key);

} // namespace Engine
