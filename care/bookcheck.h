#pragma once

#include "care/finding.h"
#include "engine/store/readorigin.h"

#include <functional>
#include <QList>
#include <QString>

namespace Tallymere {

class Inspection;
class Progress;

struct BookCheck
{
    QString name; // "balances"
    QString title; // "Balances"
    void (*run)(Inspection &);
};

const QList<BookCheck> &bookChecks(); // in the order in which they have to be run

// Runs all of them over what the database holds at one moment. What is damaged is found as well, and the other checks go
// on. Returns how much has been found. Throws when the store is gone, and what a step of the progress throws. A standby server,
// which may lack what others have just saved and has a disk of its own, is for who only wants to know.
using TellFinding = std::function<void(const BookCheck &, BookFinding)>;
int checkBooks(Engine::Database &database, Progress &progress, const TellFinding &tell,
               Engine::ReadFrom from = Engine::ReadFrom::Primary);

// The same over what the database's own connection sees, for somebody who keeps others from writing meanwhile.
int checkHeldBooks(Engine::Database &database, Progress &progress, const TellFinding &tell);

} // namespace Tallymere
