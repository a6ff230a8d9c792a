#pragma once

#include "tests/endurance/day.h"
#include "tests/support/screentest.h"
#include "transactions/documents/documentkind.h"

// The module as a host has it open on some books, and what somebody does in its windows by keyboard. A step throws a Refusal
// where it does not come to what it should.
class Desk
{
public:
    explicit Desk(const Tallymere::DataModuleOptions &options);
    ~Desk();

    // Of so many of A1 and one of B2, from the vendor to the office. A document that was begun before and is offered is
    // answered as the prompts say; when that is Yes it is saved as it stands. OK is pressed until there is a server.
    void enterReceipt(const QByteArray &vendor, const QByteArray &quantity, const QByteArray &order = {});
    void post(const Tallymere::DocumentKind &kind);
    void count(const QByteArray &keys); // "A1<Return>4<Return>", at the office
    void checkAndRepair(); // with a backup in the folder
    void backUpAndRestore();
    void synchronize(); // locations and items

    SpokenPrompts prompts;
    Tallymere::MemorySettings settings;
    Tallymere::TDataModuleTallymere data;
    QString folder; // of backups; what is restored goes to "restored" in it
    int offered = 0; // documents that were begun before

private:
    void require(bool isSo); // or what was said

    Tallymere::TdmLookUpsInv m_lookups{data.databaseTallymere()};
    Tallymere::ScreenContext m_context{.data = data, .lookups = m_lookups, .prompts = prompts};
    QWidget m_mainWindow;
};
