#include "engine/values/stablenumber.h"

#include <QCryptographicHash>
#include <QtEndian>

namespace Engine {

quint64 stableNumber(const QByteArray &bytes)
{
    return qFromBigEndian<quint64>(QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).constData());
}

quint64 stableNumber(const QList<qint64> &key)
{
    return stableNumber(QByteArray(reinterpret_cast<const char *>(key.constData()),
                                   key.size() * static_cast<qsizetype>(sizeof(qint64))));
}

} // namespace Engine
