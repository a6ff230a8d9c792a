#include "care/folderload.h"

#include "care/texts.h"
#include "engine/records/query.h"
#include "engine/store/database.h"
#include "engine/store/session.h"
#include "engine/values/userlocale.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// What bench_many and bench_growth have found to go well, and half of it or so, as the way out takes its time.
struct Bounds
{
    int writers;
    qint64 historyRows;
};
constexpr Bounds ownDisk{25, 5'000'000};
constexpr Bounds otherComputer{10, 1'000'000};

} // namespace

std::optional<FolderLoad> FolderLoad::of(Engine::Database &database)
{
    Engine::Connection &store = database.connection();
    if (database.session().type != Engine::SessionType::Local)
        return std::nullopt;
    FolderLoad load;
    load.writers = store.writingPrograms().value_or(0);
    load.historyRows = Engine::singleValue(database, u"SELECT COUNT(*) FROM IHist"_s).toInt64();
    load.isOfAnotherComputer = store.isWritingKeptOutByReading();
    return load;
}

bool FolderLoad::isNearItsEnd() const
{
    const Bounds &bounds = isOfAnotherComputer ? otherComputer : ownDisk;
    return writers >= bounds.writers || historyRows >= bounds.historyRows;
}

QString FolderLoad::text() const
{
    if (!isNearItsEnd())
        return {};
    const QLocale locale = Engine::userLocale().locale;
    return CareTexts::tr("These books (movements: %1, programs that write: %2) will soon be too much for a folder. "
                         "\"Copy Books To...\" in Data Options takes them to a server.")
        .arg(locale.toString(historyRows), locale.toString(writers));
}

} // namespace Tallymere
