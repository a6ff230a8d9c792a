#pragma once

#include "base/prompts.h"
#include "base/settingsstore.h"
#include "data/bookplace.h"
#include "data/tableowner.h"
#include "engine/records/table.h"
#include "engine/store/database.h"
#include "engine/store/session.h"
#include "engine/store/tablelocks.h"

#include <functional>
#include <memory>
#include <optional>
#include <QDate>
#include <QLocale>
#include <QString>

namespace Tallymere {

// What a caller may decide instead of the user's settings. All of it is optional.
struct DataModuleOptions
{
    QString dataFolder{}; // this folder in file-server mode
    QString server{}; // this address in client/server mode
    QString serverDatabase{}; // the database's name there; empty: "Corvane"
    std::optional<bool> readsFromStandby{}; // see readingDatabase()
    bool createDatabase = false; // makes the file, or the database on the server, when it is missing
    QString currentUser{};
    std::function<void(std::chrono::milliseconds)> waitFor{}; // how lock retries pause; see Engine::Session
    std::function<QDateTime()> clock{}; // see Engine::Session
    QLocale locale = QLocale::system(); // names the first currency where the host's configuration does not
    // Brings a table of a former release to its layout, over a connection of its own, where its user can be told so; without
    // it that is done at once. Given are what is told and the change.
    std::function<void(const QString &, Engine::Database &, const std::function<void(Engine::Database &)> &)>
        changeBeside{};
    std::function<void(Engine::Database &)> prepareHost{}; // runs once connected, before any table is looked for
    // The last step: looks the current printer up and says whether its paper is A4; nothing when there is none. Whatever
    // it throws is ignored. Without an answer the locale's system of measurement decides.
    std::function<std::optional<bool>()> prepareReportPrinting{};
};

// The connection to the host's database, and the tables that are shared by all screens.
//
// Constructing it connects, brings every inventory table up to its layout, refreshes the organization from the
// host's configuration and seeds the first location, bank and currency. A second start with nothing to change
// writes nothing. Throws EngineError when the database cannot be reached, when a table that must change is in use,
// when the database is not one of the host (table "Config" is missing: nothing has been created then),
// and when a newer release has changed its tables (base/dataversion.h: nothing has been written then).
// Some of its sessions and tables have no user yet; they are what screens of applications ask the module for.
class TDataModuleTallymere final : public TableOwner
{
public:
    TDataModuleTallymere(SettingsStore &settings, Prompts &prompts, DataModuleOptions options = {});
    ~TDataModuleTallymere();
    TDataModuleTallymere(const TDataModuleTallymere &) = delete;
    TDataModuleTallymere &operator=(const TDataModuleTallymere &) = delete;

    Engine::Session &sessionTallymere() { return m_session; }
    Engine::Database &databaseTallymere() { return m_database; }
    // The same for what only reads and may be moments old, as totals and history on a screen: over a standby server where
    // the settings want that and the database is on servers. Each call looks for a standby again. It lacks nothing that
    // this program has written.
    Engine::Database &readingDatabase();
    // For temporary tables, in the system's temporary folder; connects, and makes its file, at the first use.
    Engine::Session &sessionTempTallymere() { return m_tempSession; }
    Engine::Database &databaseTempTallymere() { return m_tempDatabase; }

    Engine::Table &memTableInvReportParameters() { return m_reportParameters; } // open

    Engine::Table &tableConfig() { return m_config; } // the host's configuration; open
    Engine::Table &tblCompany() { return m_company; } // open on its one row; refresh after writing to it elsewhere
    Engine::Table &tableIHist() { return m_hist; } // open
    Engine::Table &tableIBalance() { return m_balance; } // open
    // Opened by those who use them.
    Engine::Table &tableWarehouse() { return m_warehouse; }
    Engine::Table &tableItemCtl() { return m_itemCtl; }
    Engine::Table &tableCustCtl() { return m_custCtl; } // the host's
    Engine::Table &tableHistory() { return m_history; } // the host's

    QList<Engine::TableReader *> ownedTables() override; // all of these

    bool quickReportA4() const { return m_quickReportA4; } // reports are made for A4 paper, else for Letter

    // Where the books have gone, if they have; then nothing is brought up to date, and nothing can be written.
    const std::optional<MovedBooks> &moved() const { return m_moved; }

    const QString &cMode() const { return m_mode; } // "C" for client/server; anything else is file server
    const QString &currentUser() const { return m_currentUser; }
    void setCurrentUser(const QString &user);
    QDate today() const { return m_session.today(); }

private:
    void start();
    void awaitOtherStart(Engine::TableLocks &locks) const;
    void startSession(Engine::Session &session);
    void beforeConnect(Engine::Database &database);
    void openReportParameters();
    void requireHost();
    void prepareTables();
    void applyLayout(const Engine::TableLayout &layout);
    void tellMoved();
    void prepareReportPrinting();

    SettingsStore &m_settings;
    Prompts &m_prompts;
    DataModuleOptions m_options;
    QString m_mode;
    QString m_currentUser;
    bool m_quickReportA4 = false;
    std::optional<MovedBooks> m_moved;

    Engine::Session m_session;
    Engine::Database m_database;
    std::unique_ptr<Engine::Database> m_reading; // once it is needed
    Engine::Session m_tempSession;
    Engine::Database m_tempDatabase;
    std::unique_ptr<Engine::Database> m_memory;

    Engine::Table m_reportParameters;
    Engine::Table m_config;
    Engine::Table m_company;
    Engine::Table m_hist;
    Engine::Table m_balance;
    Engine::Table m_warehouse;
    Engine::Table m_itemCtl;
    Engine::Table m_custCtl;
    Engine::Table m_history;
};

} // namespace Tallymere
