#pragma once

#include <QStringList>

class QWidget;

// What a user sees and feels of a window, a line for each thing: its widgets from the outermost on with what differs from a
// plain one of their class (texts, names, what takes the keyboard, what may be chosen and typed, order, alignment), layouts,
// columns and commands. Neither pixels nor the day, so that it is the same on every machine.
QStringList factsOf(QWidget &window);

// Until nothing is pending in any window any more: neither what is read beside nor what goes on while nobody does anything.
void awaitIdle();

// Without what changes from day to day and from run to run.
QString timeless(QString text);
