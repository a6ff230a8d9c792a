#include "host/books/newbooks.h"

#include "base/noprompts.h"
#include "base/ruleerror.h"
#include "care/fileinmaking.h"
#include "engine/records/tablereader.h"
#include "engine/store/platform.h"
#include "engine/values/error.h"
#include "host/books/texts.h"
#include "host/sample/samplekitchen.h"
#include "host/tables/hosttables.h"

#include <cerrno>
#include <functional>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr auto sampleName = "Lakeside Meals"_L1;

[[noreturn]] void refuseOthers(const QString &place, QStringView column)
{
    throw RuleError(BooksTexts::tr("There are books already in %1. Nothing has been changed.").arg(place),
                    column.toString());
}

// A folder that has been made for books goes again where none come about.
class FolderInMaking
{
public:
    explicit FolderInMaking(const QString &folder)
        : m_folder(folder)
        , m_wasThere(QFileInfo(folder).isDir())
    {
        makeBooksFolder(folder);
    }
    ~FolderInMaking()
    {
        if (!m_wasThere && !m_isKept)
            QDir().rmdir(m_folder); // unless somebody has put something there
    }
    FolderInMaking(const FolderInMaking &) = delete;
    FolderInMaking &operator=(const FolderInMaking &) = delete;
    void keep() { m_isKept = true; }

private:
    QString m_folder;
    bool m_wasThere;
    bool m_isKept = false;
};

// Beside their place, and put there when they are whole.
void makeInFolder(const NewBooks &books, const std::function<void(TDataModuleTallymere &)> &fill)
{
    const QString folder = QDir(books.place.folder).absolutePath();
    const QString file = QDir(folder).filePath(databaseName + ".sqlite"_L1);
    for (const auto suffix : {""_L1, "-wal"_L1, "-journal"_L1})
        if (QFileInfo::exists(file + suffix))
            refuseOthers(QDir::toNativeSeparators(folder), NewBooksColumn::Folder);
    FolderInMaking made(folder);
    {
        constexpr qint64 newBooks = 5'000'000; // bytes, with the sample
        FileInMaking copy(folder, newBooks);
        {
            NoPrompts prompts;
            MemorySettings settings;
            DataModuleOptions options = newBooksOptions(books.organization, books.postalFormat);
            options.dataFolder = copy.folder();
            options.currentUser = books.user;
            TDataModuleTallymere data(settings, prompts, options);
            if (fill)
                fill(data);
        }
        copy.moveTo(file);
    }
    made.keep();
}

// Whether others have made some is asked when nobody else can be making them.
void makeOnServer(const NewBooks &books)
{
    NoPrompts prompts;
    MemorySettings settings;
    useBooks(settings, books.place);
    DataModuleOptions options = newBooksOptions(books.organization, books.postalFormat);
    options.currentUser = books.user;
    options.prepareHost = [prepare = options.prepareHost, &books](Engine::Database &database) {
        if (database.tableExists(u"Config"_s))
            refuseOthers(BooksTexts::tr("the server %1").arg(books.place.server), NewBooksColumn::Server);
        prepare(database);
    };
    TDataModuleTallymere(settings, prompts, options);
}

} // namespace

void makeBooks(const NewBooks &books)
{
    if (books.organization.trimmed().isEmpty())
        throw RuleError(BooksTexts::tr("Enter the name of the company."), NewBooksColumn::Name.toString());
    if (books.place.isOnServer())
        return makeOnServer(books);
    if (books.place.folder.trimmed().isEmpty())
        throw RuleError(BooksTexts::tr("Choose the folder for the books."), NewBooksColumn::Folder.toString());
    makeInFolder(books, {});
}

void makeSampleBooks(const QString &folder, const QString &user, Progress &progress)
{
    makeInFolder({.place = {.folder = folder}, .organization = sampleName, .postalFormat = u"USA"_s, .user = user},
                 [&progress](TDataModuleTallymere &data) {
                     NoPrompts prompts;
                     fillSmallKitchen(data, prompts, progress);
                 });
}

DataModuleOptions newBooksOptions(const QString &organization, const QString &postalFormat)
{
    DataModuleOptions options;
    options.createDatabase = true;
    // Two-letter formats are kept with a blank after them, as the host writes them.
    options.prepareHost = [organization, format = postalFormat.leftJustified(3)](Engine::Database &database) {
        HostTables::createHostTables(database, organization, format);
    };
    return options;
}

void makeBooksFolder(const QString &folder)
{
    if (folder.isEmpty() || QFileInfo(folder).isDir())
        return;
    Engine::requireUtf8Name(folder);
    if (!Engine::makeFolder(folder))
        throw Engine::EngineError(
            Engine::ErrorCode::CannotOpen,
            BooksTexts::tr("The folder %1 could not be made: %2").arg(folder, qt_error_string(errno)));
}

} // namespace Tallymere
