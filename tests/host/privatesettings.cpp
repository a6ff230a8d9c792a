#include "tests/host/privatesettings.h"

#include "base/settingsstore.h"
#include "engine/database.h"
#include "engine/session.h"
#include "host/tables/hosttables.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

// Before the first settings object is made, which keeps the path.
class PrivateSettings final : public testing::Environment
{
public:
    void SetUp() override { qputenv("XDG_CONFIG_HOME", m_folder.path().toLocal8Bit()); }

private:
    QTemporaryDir m_folder;
};

[[maybe_unused]] testing::Environment *const environment = testing::AddGlobalTestEnvironment(new PrivateSettings);

} // namespace

void makeCompany(const QString &folder, const QString &organization)
{
    Engine::Session session(u"Test"_s);
    Engine::Database database(session, Tallymere::databaseName);
    database.directory = folder;
    database.createIfMissing = true;
    Tallymere::HostTables::createHostTables(database, organization, u"USA"_s);
}
