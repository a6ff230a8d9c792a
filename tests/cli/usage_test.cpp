#include "tests/cli/clirunner.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

const std::pair<const char *, QString> usageCases[] = {
    {"", u"which command?"_s},
    {"tidy", u"unknown command 'tidy'"_s},
    {"totals --frob", u"unknown option '--frob'"_s},
    {"totals --sort", u"option '--sort' needs a value: ORDER"_s},
    {"totals --sort=up", u"option '--sort' takes item or description, not 'up'"_s},
    {"totals --csv=1", u"option '--csv' takes no value"_s},
    {"totals --as-of 26-01-01", u"option '--as-of' needs a date as YYYY-MM-DD, not '26-01-01'"_s},
    {"totals --filter a --filter b", u"option '--filter' is given twice"_s},
    {"import items", u"'import' needs more: KIND FILE"_s},
    {"sync clients", u"'sync' knows no 'clients', but: locations, items"_s},
    {"totals x", u"'totals' does not know what to do with 'x'"_s},
    {"--data a --server b totals", u"--data and --server exclude each other"_s},
    {"--data= totals", u"option '--data' needs a value"_s},
    {"sample --seed=-1", u"option '--seed' needs a whole number of 0 or more, not '-1'"_s},
    {"help recieve", u"the manual has no topic 'recieve', but: receive"_s},
    {"sample --size=huge", u"option '--size' takes small or large, not 'huge'"_s},
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
    const CliResult all = cli.runBare("--help");
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
    EXPECT_TRUE(has(cli.runBare("help").output, u"\n  receive "_s));
    EXPECT_TRUE(begins(cli.runBare("help receive").output, u"Receive goods\n=============\n"_s));
    EXPECT_EQ(cli.runBare("--version").output, u"tallymere " TALLYMERE_VERSION "\n"_s);
}

} // namespace
