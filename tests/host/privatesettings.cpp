#include "tests/host/privatesettings.h"

#include "engine/database.h"
#include "engine/session.h"
#include "frame/shared/settingsstore.h"
#include "host/tables/hosttables.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

// Before the first settings object is made, which keeps the path.
class PrivateSettings final : public testing::Environment
{
public:
    void SetUp() override { qputenv("XDG_CONFIG_HOME", m_folder.path().toLocal8Bit()); }
    QString path() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};

PrivateSettings *const environment =
    static_cast<PrivateSettings *>(testing::AddGlobalTestEnvironment(new PrivateSettings));

} // namespace

QString privateSettingsFolder() { return environment->path(); }

void makeCompany(const QString &folder, const QString &organization)
{
    Engine::Session session(u"Test"_s);
    Engine::Database database(session, Tallymere::databaseName);
    database.directory = folder;
    database.createIfMissing = true;
    Tallymere::HostTables::createHostTables(database, organization, u"USA"_s);
}
