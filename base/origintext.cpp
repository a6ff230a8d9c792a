#include "base/origintext.h"

#include "base/formats.h"
#include "base/plural.h"
#include "base/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString timeText(const QDateTime &time)
{
    const QString text = time.toString(u"HH:mm:ss"_s);
    return time.date() == QDate::currentDate() ? text : dateText(time.date()) + u' ' + text;
}

QString fromPrimary(Engine::ReadOrigin::Reason reason)
{
    switch (reason) {
    case Engine::ReadOrigin::Reason::Behind:
        return BaseTexts::tr("As of %1, from the primary server: the standby server is too far behind");
    case Engine::ReadOrigin::Reason::Failed:
        return BaseTexts::tr("As of %1, from the primary server: the standby server has ended the reading");
    default:
        return BaseTexts::tr("As of %1, from the primary server: there is no standby server to read from");
    }
}

} // namespace

QString originText(const Engine::ReadOrigin &origin)
{
    if (origin.reason == Engine::ReadOrigin::Reason::NotWanted)
        return {};
    const QString time = timeText(origin.asOf);
    if (!origin.isStandby())
        return fromPrimary(origin.reason).arg(time);
    const qint64 behind = std::chrono::round<std::chrono::seconds>(origin.behind).count();
    if (behind == 0)
        return BaseTexts::tr("As of %1, from the standby server %2").arg(time, origin.server);
    return plural(behind, BaseTexts::tr("As of %1, %n second behind, from the standby server %2"),
                  BaseTexts::tr("As of %1, %n seconds behind, from the standby server %2"))
        .arg(time, origin.server);
}

OriginNote::OriginNote(Engine::Session &session)
    : m_session(session)
    , m_before(session.readFrom)
{
    m_session.readFrom = [this](const Engine::ReadOrigin &origin) { m_text = originText(origin); };
}

OriginNote::~OriginNote() { m_session.readFrom = m_before; }

} // namespace Tallymere
