#pragma once

#include "base/prompts.h"
#include "engine/store/database.h"

#include <QDate>

namespace Tallymere {

// Deletes all unposted usage of one date.
class UsageDeletion
{
public:
    UsageDeletion(Engine::Database &database, QDate date);

    // Asks how many go, deletes them with their lines, and leaves a note of it with the user's name in the host's
    // history. False when nothing was deleted. The table of usage is held from the first look to the note: EngineError
    // at once while another user has it or edits one of its records, RuleError when a screen of this program does.
    // There is no transaction: an error leaves what was deleted before it, and no note.
    bool run(Prompts &prompts, const QString &user);
    const QList<int> &deleted() const { return m_deleted; } // keys; also after an error

private:
    QList<int> unposted();
    void refuseEdited(const QList<int> &keys);
    void execute(const QString &statement);

    Engine::Database &m_database;
    const QDate m_date;
    const QString m_dateText;
    QList<int> m_deleted;
};

} // namespace Tallymere
