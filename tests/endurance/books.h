#pragma once

#include "tests/endurance/disk.h"

#include <QStringList>

// What a command of the command line has come to, run within this program.
struct Outcome
{
    int status = -1;
    QString errors; // and what it printed
};
Outcome runCommand(const QStringList &words);

// Writes the files of one database as the system would show them after the power has come back: they are other files to it,
// and the lock file knows of the former ones by their numbers.
void putFiles(const Disk::Files &files, const QString &folder);

// What "check" says of the books in a folder, and a number for all rows of all their tables.
QString verdictOn(const QString &folder);
inline constexpr QLatin1StringView noBooks{"none"};
bool isSound(const QString &verdict);

// The totals of all books in the folders of this one, and how many lines their documents have.
QString stockIn(const QString &folder);

// The template of a temporary folder: in memory where the system has such, as what counts as a disk is our own affair.
QString scratch(const QString &name);
