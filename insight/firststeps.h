#pragma once

#include "engine/store/answer.h"

#include <functional>
#include <QList>
#include <QString>

namespace Engine {
class Database;
}

namespace Tallymere {

// Where somebody is who begins with empty books, as these tell it. Each is found out by the keys of a row or two.
struct FirstStepState
{
    bool isDone = false;
    QString screen = {}; // that goes on with it now, in place of that of its last way
    QString detail = {}; // what is left of it, where it has been begun
};

// One way to do a step.
struct FirstStepWay
{
    QString name; // of what shows it: "firstItemsImport"
    QString command; // what its button says: "From a Spreadsheet..."
    QString screen = {}; // component name of what it opens
    QString importKind = {}; // or the kind of file that it brings in
};

struct FirstStep
{
    QString name; // of what shows it: "firstItems"
    QString title;
    QString purpose; // what it is for, in a sentence
    QList<FirstStepWay> ways;
    std::function<Engine::Answer<FirstStepState>(Engine::Database &)> ask;
};

// Fiscal year and period, locations, item types, items, vendors, the first count: in the order in which one needs the other.
const QList<FirstStep> &firstSteps();

// The states of all of them, in their order.
QList<FirstStepState> readFirstSteps(Engine::Database &database);
int openSteps(const QList<FirstStepState> &states);

} // namespace Tallymere
