#pragma once

#include "engine/store/session.h"

#include <QString>

namespace Tallymere {

// "As of 12:03:15, 4 seconds behind, from the standby server 10.0.0.6"; from the primary with the reason where a standby was
// wanted; empty where none was.
QString originText(const Engine::ReadOrigin &origin);

// Keeps, as long as it lives, where the moments of a session were read, the last one.
class OriginNote
{
public:
    explicit OriginNote(Engine::Session &session);
    ~OriginNote();
    OriginNote(const OriginNote &) = delete;
    OriginNote &operator=(const OriginNote &) = delete;

    const QString &text() const { return m_text; } // as originText()

private:
    Engine::Session &m_session;
    const std::function<void(const Engine::ReadOrigin &)> m_before;
    QString m_text;
};

} // namespace Tallymere
