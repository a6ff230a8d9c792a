#include "tests/cli/clirunner.h"
#include "tests/support/files.h"

using namespace Qt::StringLiterals;

namespace {

TEST(StoreFailure, ADatabaseThatCannotBeOpenedIsNamedAndStaysAsItIs)
{
    CliRunner cli(Store::Local);
    const QTemporaryDir letters;
    const QByteArray letter = "Dear Anna, this is no database but a letter that got the wrong name.\n";
    putContent(letters.filePath(u"Corvane.sqlite"_s), letter);
    const std::tuple<QStringList, QStringList, QString> cases[] = {
        // the words, the environment, what is named
        {{u"--data"_s, u"/nowhere/kitchen"_s, u"totals"_s}, {}, u"/nowhere/kitchen"_s},
        {{u"--data"_s, cli.folder(), u"totals"_s}, {}, u"tallymere init"_s},
        {{u"--server"_s, u"127.0.0.1"_s, u"totals"_s}, {u"PGPORT=1"_s}, u"127.0.0.1"_s},
        {{u"totals"_s}, {u"XDG_CONFIG_HOME=/nowhere"_s}, u"The Corvane database has not been defined."_s},
        {{u"--data"_s, letters.path(), u"totals"_s}, {}, u"is not a database"_s},
        {{u"--data"_s, letters.path(), u"init"_s}, {}, u"is not a database"_s},
        {{u"--data"_s, letters.path(), u"sample"_s}, {}, u"is not a database"_s},
    };
    for (const auto &[words, environment, named] : cases) {
        const CliResult result = cli.runBare(words, environment);
        EXPECT_EQ(result.status, 3);
        EXPECT_TRUE(has(result.errors, named));
    }
    EXPECT_FALSE(QDir(u"/nowhere"_s).exists());
    EXPECT_FALSE(QFile::exists(cli.folder() + "/Corvane.sqlite"_L1)) << "reading fills no folder";
    EXPECT_EQ(contentOf(letters.filePath(u"Corvane.sqlite"_s)), letter);
}

TEST(StoreFailure, OutputThatCannotBeWrittenIsNoSuccess)
{
    CliRunner cli(Store::Local);
    cli.output("init");
    QProcess process;
    process.setStandardOutputFile(u"/dev/full"_s);
    for (const char *words : {"list currencies", "help", "init", "--version"}) {
        process.start(QStringLiteral(TALLYMERE_PROGRAM), QStringList{u"--data"_s, cli.folder()} + Words(words));
        const CliResult result = CliRunner::finish(process);
        EXPECT_EQ(result.status, 1) << words;
        EXPECT_TRUE(has(result.errors, u"could not be written"_s)) << words;
    }
}

} // namespace
