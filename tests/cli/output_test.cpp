#include "tests/cli/clirunner.h"
#include "tests/support/files.h"

// What the program writes besides the database: where it goes, and what stays of it.

using namespace Qt::StringLiterals;

namespace {

struct Output : testing::Test
{
    Output() { cli.output("init"); }

    // In a shell, which can hand on names that no QString stands for. "$T" is the program.
    CliResult runScript(const QString &script)
    {
        process.setWorkingDirectory(work.path());
        QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
        variables.insert(u"T"_s, QStringLiteral(TALLYMERE_PROGRAM));
        variables.insert(u"DATA"_s, cli.folder());
        process.setProcessEnvironment(variables);
        process.start(u"/bin/sh"_s, {u"-c"_s, script});
        return CliRunner::finish(process);
    }
    QStringList written() const { return entriesOf(work.path()); }

    CliRunner cli{Store::Local};
    QTemporaryDir work;
    QProcess process;
};

TEST_F(Output, OfPagesGoesThroughAPipeOrIntoAFileOfThatPaper)
{
    const auto pdf = [](const char *paper, const char *box) {
        return u"\"$T\" --data \"$DATA\" report 'Value by Item' --paper %1 --pdf /dev/stdout "
               "| cat >piped; grep -aq '^/MediaBox .0 0 %2' piped"_s.arg(QLatin1String(paper), QLatin1String(box));
    };
    for (const QString &script : {pdf("a4", "595[.0]* 842"), pdf("LETTER", "612[.0]* 792")}) {
        const CliResult piped = runScript(script);
        EXPECT_EQ(piped.status, 0) << piped;
    }
    const CliResult result =
        runScript(u"\"$T\" --data \"$DATA\" report 'Value by Item' --paper a4 --pdf 'my pages.pdf'"_s);
    EXPECT_EQ(result.output, u"1 page saved as my pages.pdf\n"_s) << result;
    EXPECT_EQ(written(), (QStringList{u"my pages.pdf"_s, u"piped"_s}));
}

TEST_F(Output, DoesNotMixUpFoldersWhoseNamesAreNotUtf8)
{
    const QString notUtf8 = u"not UTF-8"_s;
    CliResult result = runScript(u"\"$T\" --data \"$(printf 'k\\377')\" init"_s);
    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(result.errors.contains(notUtf8)) << result;
    for (const QString &folder : {u"cd \"$N\"; \"$T\" --data ."_s, u"ln -s \"$N\" link; \"$T\" --data link"_s}) {
        result = runScript(u"N=$(printf 'k\\377'); mkdir \"$N\"; "_s + folder + " init"_L1);
        EXPECT_EQ(result.status, 3);
        EXPECT_TRUE(result.errors.contains(notUtf8)) << result;
        result = runScript(u"N=$(printf 'k\\377'); rmdir \"$N\" && rm -f link"_s);
        EXPECT_EQ(result.status, 0) << "a file was made in it" << result;
        EXPECT_EQ(written(), QStringList());
    }
}

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
        {{u"totals"_s}, {u"XDG_CONFIG_HOME=/nowhere"_s}, u"Name it with --data"_s},
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
