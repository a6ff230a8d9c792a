#pragma once

#include "tests/transactions/kitchen.h"

#include <QProcess>

// The test program itself in the part of another user: a process of its own on the kitchen's database.
//
//   post               posts the receipts
//   number COUNT       begins and drops that many new receipts, printing their numbers
class OtherUser
{
public:
    OtherUser(const TestStore &store, const QStringList &task);
    ~OtherUser();

    void kill(); // at once, as kill -9 does
    bool finish(); // waits for a good end
    QStringList output(); // lines, after finish()

private:
    QProcess m_process;
};

// Plays the part when the program was started by OtherUser; the exit status, or -1 when it was not.
int playOtherUser(const QStringList &arguments);
