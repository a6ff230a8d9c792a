#include "phonecount/requestrate.h"

#include <algorithm>

namespace Tallymere {

namespace {
constexpr qsizetype mostRemembered = 256; // a network has no more phones; somebody who makes up addresses has
} // namespace

bool RequestRate::allows(const QString &from, qint64 now)
{
    if (m_left.size() >= mostRemembered && !m_left.contains(from))
        m_left.removeIf([&](const auto &one) {
            return one->requests + static_cast<double>(now - one->at) / 1000 * m_aSecond >= m_atOnce;
        });
    if (m_left.size() >= mostRemembered && !m_left.contains(from))
        return false;
    Left &left = m_left.contains(from) ? m_left[from] : *m_left.insert(from, {m_atOnce, now});
    left.requests = std::min(m_atOnce, left.requests + static_cast<double>(now - left.at) / 1000 * m_aSecond);
    left.at = now;
    if (left.requests < 1)
        return false;
    left.requests -= 1;
    return true;
}

} // namespace Tallymere
