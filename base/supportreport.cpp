#include "base/supportreport.h"

#include "base/dataversion.h"
#include "base/texts.h"
#include "engine/records/query.h"
#include "engine/store/database.h"
#include "engine/store/session.h"
#include "engine/values/error.h"

#include <functional>
#include <QLocale>
#include <QSysInfo>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// Error texts name places; their codes do not.
QString orCode(const std::function<QString()> &read)
{
    try {
        return read();
    } catch (const Engine::EngineError &error) {
        return BaseTexts::tr("cannot be read, error %1").arg(static_cast<int>(error.code()));
    }
}

QString storeRelease(Engine::Database &database)
{
    database.connection(); // settles what it is
    const bool onServer = database.session().type == Engine::SessionType::Remote;
    const QString release =
        Engine::singleValue(database, onServer ? u"SHOW server_version"_s : u"SELECT sqlite_version()"_s).toText();
    return (onServer ? "PostgreSQL "_L1 : "SQLite "_L1) + release.section(u' ', 0, 0);
}

} // namespace

QString storeText(Engine::Database &database)
{
    const QString release = orCode([&] { return storeRelease(database); });
    return database.session().type == Engine::SessionType::Remote ? BaseTexts::tr("Server, %1").arg(release)
                                                                  : BaseTexts::tr("Folder, %1").arg(release);
}

QString dataVersionText(Engine::Database &database)
{
    return orCode([&] {
        const StoredDataVersion stored = storedDataVersion(database);
        return stored.number == 0 ? BaseTexts::tr("none")
                                  : BaseTexts::tr("%1, from release %2").arg(stored.number).arg(stored.release);
    });
}

QString supportReport(const QString &program, Engine::Database &database, const QString &display)
{
    const std::pair<const char *, QString> lines[] = {
        {"Program", program},
        {"Store", storeText(database)},
        {"Data version", dataVersionText(database)},
        {"Data version known", QString::number(dataVersion)},
        {"Qt", u"%1, built with " QT_VERSION_STR ""_s.arg(QLatin1StringView(qVersion()))},
        {"System",
         u"%1, %2 %3, %4"_s.arg(QSysInfo::prettyProductName(), QSysInfo::kernelType(), QSysInfo::kernelVersion(),
                                QSysInfo::currentCpuArchitecture())},
        {"Display", display},
        {"Locale", QLocale::system().name()},
    };
    QString report;
    for (const auto &[name, value] : lines)
        report += QLatin1StringView(name) + ": "_L1 + value + u'\n';
    return report;
}

} // namespace Tallymere
