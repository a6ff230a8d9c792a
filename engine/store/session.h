#pragma once

#include "engine/store/readorigin.h"
#include "engine/store/stores.h"

#include <chrono>
#include <functional>
#include <QDateTime>
#include <QString>

namespace Engine {

enum class SessionType { Local, Remote };
// Internet requires an encrypted connection, Lan prefers one.
enum class LinkType { Lan, Internet };

// How databases are reached, and how locks are waited for. A session holds settings; its databases hold connections.
class Session
{
public:
    Session(QString name, Stores stores)
        : m_name(std::move(name))
        , m_stores(stores)
    {
    }
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    const QString &name() const { return m_name; }
    const Stores &stores() const { return m_stores; }

    // Called once before the first database of the session connects; sets type and address.
    std::function<void(Session &)> onStartup;

    SessionType type = SessionType::Local;
    QString privateDirectory; // for temporary files
    QString remoteAddress;
    LinkType remoteLink = LinkType::Lan;
    QString remoteUser;
    QString remotePassword;
    QString applicationUser; // shown to others as the owner of this session's locks

    // What messages call a table, whose name means nothing to users. Empty: its name.
    std::function<QString(const QString &table)> tableTitle;
    QString titleOf(const QString &table) const { return tableTitle ? tableTitle(table) : table; }

    // Record locks are taken when an edit begins, tried this often with this pause in between.
    int lockAttempts = 15;
    std::chrono::milliseconds lockPause{100};
    // How long a server lets one statement wait for somebody's lock. What gives up then is tried again with pauses in
    // between, for as long as record locks are tried, so that a screen never stands still for longer than this.
    std::chrono::milliseconds serverLockWait{400};
    // A cluster names another of its servers when one is gone, which takes it some seconds. So long a statement waits that
    // finds the connection lost, where several addresses are given; and so long the answer to a commit is looked for.
    std::chrono::milliseconds serverWait{10'000};
    std::chrono::milliseconds answerWait{60'000};
    // Whether what may be read from a standby server is (ReadFrom::Standby), how long that may take to get what this
    // program has written, and who is told where a moment is read.
    bool readsFromStandby = false;
    std::chrono::milliseconds standbyWait{2'000};
    std::function<void(const ReadOrigin &)> readFrom;
    // Told when the server of a database is gone, and when it is there again.
    std::function<void(bool isThere)> serverChanged;
    // Called for each pause instead of sleeping, so that a screen can stay alive. Empty: sleep. What it lets happen is refused
    // by a connection that is waiting itself.
    std::function<void(std::chrono::milliseconds)> waitFor;

    // The time of all that works with its databases: dates of new documents, periods proposed, notes of what was done.
    // Empty: the system's.
    std::function<QDateTime()> clock;
    QDateTime now() const { return clock ? clock() : QDateTime::currentDateTime(); }
    QDate today() const { return now().date(); }

    void start(); // runs onStartup unless that has been done
    void pause() const { pause(lockPause); }
    void pause(std::chrono::milliseconds time) const;
    // Pauses and gives true while what was begun then may be tried again. Never within a pause: what a screen does
    // meanwhile must not wait as well.
    bool mayTryAgain(std::chrono::steady_clock::time_point since) const;
    bool mayTryAgain(std::chrono::steady_clock::time_point since, std::chrono::milliseconds time) const;
    // While a server says nothing: lets a screen live for a moment, where there is one.
    void stayAlive() const;

private:
    QString m_name;
    Stores m_stores;
    bool m_started = false;
    mutable bool m_pausing = false;
};

} // namespace Engine
