#include "base/dataversion.h"
#include "base/initfile.h"
#include "host/company.h"
#include "tests/support/hostcompany.h"

#include <QDir>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace Tallymere;

TEST(HostCompany, WhatIsWrongIsTold)
{
    const QTemporaryDir folder;
    for (const QString &wrong : {folder.path(), folder.path() + "/none"_L1}) {
        MemorySettings settings;
        useBooks(settings, {.folder = wrong});
        const Company company = readCompany(settings);
        EXPECT_TRUE(company.defined);
        EXPECT_TRUE(has(company.problem, folder.path()));
    }
}

TEST(HostCompany, DataOfANewerReleaseAreToldBesideTheName)
{
    const QTemporaryDir folder;
    makeCompany(folder.path(), u"Harvest Table"_s);
    MemorySettings settings;
    useBooks(settings, {.folder = folder.path()});
    EXPECT_EQ(readCompany(settings).problem, QString());
    withCompany(settings, [](Engine::Database &database) {
        database.connection().execute(u"CREATE TABLE IDataVersion (DataVersion integer, ProgramVersion text)"_s);
        database.connection().execute(u"INSERT INTO IDataVersion VALUES (%1, '9.8')"_s.arg(dataVersion + 1));
    });
    const Company company = readCompany(settings);
    EXPECT_EQ(company.name, u"Harvest Table"_s);
    EXPECT_TRUE(has(company.problem, u"newer release, 9.8"_s));
}

TEST(HostCompany, SampleIsOfferedOnlyWhenItIsThere)
{
    const QTemporaryDir folder;
    const InitFile file(folder.filePath(u"HX1.ini"_s));
    EXPECT_EQ(sampleCompanyFolder(folder.path()), QString());
    ASSERT_TRUE(file.setValue(Settings::SampleData, folder.filePath(u"Data"_s)));
    EXPECT_EQ(sampleCompanyFolder(folder.path()), QString());
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"Data"_s));
    makeCompany(folder.filePath(u"Data"_s), u"Sample"_s);
    EXPECT_EQ(sampleCompanyFolder(folder.path()), folder.filePath(u"Data"_s));
}
