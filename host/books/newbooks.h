#pragma once

#include "base/booksplace.h"
#include "data/datamodule.h"

#include <QString>

namespace Tallymere {

class Progress;

// The books of a company that has none yet.
struct NewBooks
{
    BooksPlace place;
    QString organization;
    QString postalFormat; // "USA", "CAN", "UK" or another
    QString user; // who makes them
};

// What a refusal is about, as its column.
namespace NewBooksColumn {
inline constexpr QStringView Name = u"Name";
inline constexpr QStringView Folder = u"Folder";
inline constexpr QStringView Server = u"Server";
} // namespace NewBooksColumn

// Makes the books, all of them or none: the folder or the database on the server where it is missing, the host's tables, the
// inventory's. Throws RuleError with the column for a name that is missing and for a place that holds books already, before anything
// is written; EngineError when the place cannot be written.
void makeBooks(const NewBooks &books);

// The same in a folder with the sample kitchen in them; what a step of the progress throws leaves nothing behind.
void makeSampleBooks(const QString &folder, const QString &user, Progress &progress);

// Opens a database and makes in it what is missing of the host's tables, and the row of its configuration.
DataModuleOptions newBooksOptions(const QString &organization, const QString &postalFormat);
// The folder, and those above it that are missing. Throws EngineError.
void makeBooksFolder(const QString &folder);

} // namespace Tallymere
