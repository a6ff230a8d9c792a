#pragma once

#include <QHash>
#include <QString>

namespace Tallymere {

// How often somebody may ask: so often at once, and so often a second over time. Who asks is known by his address.
class RequestRate
{
public:
    RequestRate(double atOnce, double aSecond)
        : m_atOnce(atOnce)
        , m_aSecond(aSecond)
    {
    }
    bool allows(const QString &from, qint64 now); // milliseconds, of any beginning

private:
    struct Left
    {
        double requests = 0;
        qint64 at = 0;
    };

    const double m_atOnce;
    const double m_aSecond;
    QHash<QString, Left> m_left;
};

} // namespace Tallymere
