#include "tests/frame/testcompany.h"

#include "host/tables/hosttables.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

TestCompany::TestCompany()
{
    Engine::Session session(u"Host"_s);
    Engine::Database database(session, databaseName);
    database.directory = folder();
    database.createIfMissing = true;
    HostTables::createHostTables(database, u"Harvest Table Kitchens"_s, u"USA"_s);
    setRegString(settings, u"Mode"_s, u"F"_s);
    setRegString(settings, u"Alias"_s, folder());
}

TestContext::TestContext()
    : data(company.settings, company.prompts)
    , lookups(data.databaseTallymere())
    , context{.data = data, .lookups = lookups, .prompts = company.prompts}
{
}
