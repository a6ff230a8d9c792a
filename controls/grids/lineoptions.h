#pragma once

#include <functional>
#include <optional>
#include <QHash>
#include <QString>
#include <QStringList>

namespace Tallymere {

// By how much the number in a cell is stepped, and how far it may go, typed or stepped.
struct LineSteps
{
    double step = 1;
    double lowest = 0;
    double highest = 0;
};

// What an empty cell of the line in hand may be given by Enter.
struct LineOffer
{
    QString text; // as it would be typed
    QString shown; // in the cell, until then
};

// What a line grid does differently from the plain one, in which every column can be typed into, Enter stops at each,
// and lines come and go. Columns are named by their fields.
struct LineOptions
{
    QStringList passedByEnter = {}; // Tab, arrow keys and mouse reach them
    // Whether Enter passes over a column of the current line as well; asked each time it moves.
    std::function<bool(const QString &field)> passedNow = {};
    QStringList fixed = {}; // cannot be typed into
    QStringList behind =
        {}; // what stands behind the columns of the document for reading: Enter and Tab do not come there
    bool searchOnEntering = false; // moving into a column that has a search, by key or mouse, opens it
    bool backToStart = false; // leaving the grid goes back to its first line and column
    bool fixedLines = false; // none is appended or deleted
    // Asked for the columns of the line that is being edited. What is offered is nowhere stored before it is taken.
    std::function<std::optional<LineOffer>(const QString &field)> offer = {};
    // Columns whose editor steps. Asked for the current line, each time an editor opens on it.
    QHash<QString, std::function<LineSteps()>> steps = {};
};

} // namespace Tallymere
