#pragma once

#include "engine/store/answer.h"
#include "transactions/counting/countdraft.h"

#include <functional>
#include <QList>
#include <QString>

namespace Engine {
class Database;
}

namespace Tallymere {

// Whose day it is.
struct TodaySource
{
    Engine::Database &database;
    QString user;
    QString draftFolder = CountDrafts::standardFolder();
};

struct TodayFigure
{
    QString text; // "3"; "12 / 2026"
    bool waits = false; // there is something to be done
    QString detail = {}; // whose or where it is: "Last saved by: maria 2, paul 1"
    QString screen = {}; // that shows more of it, where that is not the line's
};

// Something that has to be done or to be known today, with a screen that shows more of it.
struct TodayLine
{
    enum class Tone { Usual, Alarm }; // of what waits

    QString name; // of what shows the line: "todayReceipts"
    QString title; // "Receipts to post"
    QString screen; // component name: "frmInvReceipts"
    std::function<Engine::Answer<TodayFigure>(const TodaySource &)> ask; // one short statement or two
    Tone tone = Tone::Usual;
    bool isForMonthEnd = false; // nothing is to wait when a month ends
};

// The documents of each kind that wait to be posted, the balances below zero, the documents and the counts that the user has begun,
// the period that new documents go into, the last backup.
const QList<TodayLine> &todayLines();

} // namespace Tallymere
