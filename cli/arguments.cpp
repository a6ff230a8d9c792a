#include "cli/arguments.h"

#include "cli/texts.h"

#include <QCommandLineParser>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

namespace {

// The parser tells in words of its own what is wrong; these are found out again, to say it as everywhere else.
[[noreturn]] void refuse(const QCommandLineParser &parser, const QStringList &words,
                         const QList<OptionSpec> &options)
{
    if (const QStringList unknown = parser.unknownOptionNames(); !unknown.isEmpty())
        throw UsageError(Texts::tr("unknown option '--%1'").arg(unknown.first()));
    for (const OptionSpec &option : options) {
        const QString given = "--"_L1 + option.name;
        if (option.value.isEmpty() && !words.filter(QRegularExpression(u'^' + given + u'=')).isEmpty())
            throw UsageError(Texts::tr("option '%1' takes no value").arg(given));
        if (!option.value.isEmpty() && words.last() == given)
            throw UsageError(Texts::tr("option '%1' needs a value: %2").arg(given, option.value));
    }
    throw UsageError(parser.errorText());
}

} // namespace

Arguments::Arguments(const QStringList &words, const QList<OptionSpec> &options)
{
    QCommandLineParser parser;
    for (const OptionSpec &option : options)
        parser.addOption({option.name, option.text, option.value});
    if (!parser.parse(QStringList(u"tallymere"_s) + words))
        refuse(parser, words, options);
    for (const QString &name : parser.optionNames()) {
        if (m_options.contains(name))
            throw UsageError(Texts::tr("option '--%1' is given twice").arg(name));
        m_options.insert(name, parser.value(name));
    }
    m_words = parser.positionalArguments();
}

qint64 Arguments::number(const QString &option, qint64 otherwise) const
{
    if (!has(option))
        return otherwise;
    bool ok = false;
    const qint64 number = value(option).toLongLong(&ok);
    if (!ok || number < 0)
        throw UsageError(
            Texts::tr("option '--%1' needs a whole number of 0 or more, not '%2'").arg(option, value(option)));
    return number;
}

} // namespace Tallymere::Cli
