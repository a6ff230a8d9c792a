#include "cli/arguments.h"

#include "cli/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

Arguments::Arguments(const QStringList &words, const QList<OptionSpec> &options)
{
    QStringList rest = words;
    bool optionsOver = false;
    while (!rest.isEmpty()) {
        const QString word = rest.takeFirst();
        if (!optionsOver && word == "--"_L1)
            optionsOver = true;
        else if (!optionsOver && word.startsWith("--"_L1))
            takeOption(word.mid(2), rest, options);
        else
            m_words.append(word);
    }
}

void Arguments::takeOption(QString name, QStringList &rest, const QList<OptionSpec> &options)
{
    QString value;
    const qsizetype equals = name.indexOf(u'=');
    if (equals >= 0) {
        value = name.mid(equals + 1);
        name.truncate(equals);
    }
    const auto known =
        std::find_if(options.begin(), options.end(), [&](const OptionSpec &option) { return option.name == name; });
    if (known == options.end())
        throw UsageError(Texts::tr("unknown option '--%1'").arg(name));
    if (m_options.contains(name))
        throw UsageError(Texts::tr("option '--%1' is given twice").arg(name));
    if (known->value.isEmpty() && equals >= 0)
        throw UsageError(Texts::tr("option '--%1' takes no value").arg(name));
    if (!known->value.isEmpty() && equals < 0) {
        if (rest.isEmpty())
            throw UsageError(Texts::tr("option '--%1' needs a value: %2").arg(name, known->value));
        value = rest.takeFirst();
    }
    m_options.insert(name, value);
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
