#include "tests/cli/clirunner.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

const std::pair<QStringList, QString> usageCases[] = {
    {{}, u"which command?"_s},
    {{u"tidy"_s}, u"unknown command 'tidy'"_s},
    {{u"totals"_s, u"--frob"_s}, u"unknown option '--frob'"_s},
    {{u"totals"_s, u"--sort"_s}, u"option '--sort' needs a value: ORDER"_s},
    {{u"totals"_s, u"--sort=up"_s}, u"option '--sort' takes item or description, not 'up'"_s},
    {{u"totals"_s, u"--csv=1"_s}, u"option '--csv' takes no value"_s},
    {{u"totals"_s, u"--as-of"_s, u"26-01-01"_s}, u"option '--as-of' needs a date as YYYY-MM-DD, not '26-01-01'"_s},
    {{u"totals"_s, u"--filter"_s, u"a"_s, u"--filter"_s, u"b"_s}, u"option '--filter' is given twice"_s},
    {{u"import"_s, u"items"_s}, u"'import' needs more: KIND FILE"_s},
    {{u"sync"_s, u"clients"_s}, u"'sync' knows no 'clients', but: locations, items"_s},
    {{u"totals"_s, u"x"_s}, u"'totals' does not know what to do with 'x'"_s},
    {{u"--data"_s, u"a"_s, u"--server"_s, u"b"_s, u"totals"_s}, u"--data and --server exclude each other"_s},
    {{u"--data="_s, u"totals"_s}, u"option '--data' needs a value"_s},
    {{u"sample"_s, u"--seed=-1"_s}, u"option '--seed' needs a whole number of 0 or more, not '-1'"_s},
    {{u"help"_s, u"recieve"_s}, u"the manual has no topic 'recieve', but: receive"_s},
    {{u"sample"_s, u"--size=huge"_s}, u"option '--size' takes small or large, not 'huge'"_s},
};

TEST(WrongUsage, IsToldWithStatusTwo)
{
    CliRunner cli(Store::Local);
    for (const auto &[words, message] : usageCases) {
        const CliResult result = cli.runBare(words);
        EXPECT_EQ(result.status, 2) << result;
        EXPECT_EQ(result.errorLines().value(0), u"tallymere: "_s + message);
        EXPECT_EQ(result.output, QString());
    }
}

TEST(Help, IsThereForTheProgramAndForEachCommandThatItNames)
{
    CliRunner cli(Store::Local);
    const CliResult all = cli.runBare({u"--help"_s});
    EXPECT_EQ(all.status, 0);
    QStringList commands;
    for (const QString &line : all.output.split(u'\n').filter(QRegularExpression(u"^  [a-z]"_s)))
        commands << line.trimmed().section(u' ', 0, 0);
    for (const QString &known : {u"import"_s, u"report"_s, u"help"_s})
        EXPECT_TRUE(commands.contains(known)) << all;
    for (const QString &command : std::as_const(commands)) {
        const CliResult one = cli.runBare({command, u"--help"_s});
        EXPECT_EQ(one.status, 0) << qPrintable(command);
        EXPECT_TRUE(has(one.output, command));
    }
    EXPECT_TRUE(cli.runBare({u"help"_s}).output.contains(u"\n  receive "_s));
    EXPECT_TRUE(cli.runBare({u"help"_s, u"receive"_s}).output.startsWith(u"Receive goods\n=============\n"_s));
    EXPECT_EQ(cli.runBare({u"--version"_s}).output, u"tallymere " TALLYMERE_VERSION "\n"_s);
}

} // namespace
