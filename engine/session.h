#pragma once

#include <chrono>
#include <functional>
#include <QString>

namespace Engine {

enum class SessionType { Local, Remote };
// Internet requires an encrypted connection, Lan prefers one.
enum class LinkType { Lan, Internet };

// How databases are reached, and how locks are waited for. A session holds settings; its databases hold connections.
class Session
{
public:
    explicit Session(QString name)
        : m_name(std::move(name))
    {
    }
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    const QString &name() const { return m_name; }

    // Called once before the first database of the session connects; sets type and address.
    std::function<void(Session &)> onStartup;

    SessionType type = SessionType::Local;
    QString privateDirectory; // for temporary files
    QString remoteAddress;
    LinkType remoteLink = LinkType::Lan;
    QString remoteUser;
    QString remotePassword;
    QString applicationUser; // shown to others as the owner of this session's locks

    // Record locks are taken when an edit begins, tried this often with this pause in between.
    int lockAttempts = 15;
    std::chrono::milliseconds lockPause{100};
    // Called for each pause instead of sleeping, so that a screen can stay alive. Empty: sleep.
    std::function<void(std::chrono::milliseconds)> waitFor;

    void start(); // runs onStartup unless that has been done
    void pause() const; // one lockPause

private:
    QString m_name;
    bool m_started = false;
};

} // namespace Engine
