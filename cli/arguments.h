#pragma once

#include <exception>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

namespace Tallymere::Cli {

// The command line does not make sense: exit status 2.
class UsageError : public std::exception
{
public:
    explicit UsageError(QString message)
        : m_message(std::move(message))
        , m_what(m_message.toUtf8())
    {
    }

    const QString &message() const { return m_message; }
    const char *what() const noexcept override { return m_what.constData(); }

private:
    QString m_message;
    QByteArray m_what;
};

struct OptionSpec
{
    QString name; // "data", given as --data
    QString value; // what stands after it: "FOLDER"; empty for a switch
    QString text; // for --help
};

// What stands on the command line: options ("--name value" or "--name=value", switches "--name") and the words
// between them. "--" ends the options.
class Arguments
{
public:
    // Throws UsageError for an option that is unknown, given twice, or without its value.
    Arguments(const QStringList &words, const QList<OptionSpec> &options);

    bool has(const QString &option) const { return m_options.contains(option); }
    QString value(const QString &option, const QString &otherwise = {}) const
    {
        return m_options.value(option, otherwise);
    }
    // A whole number of 0 or more; throws UsageError for anything else.
    qint64 number(const QString &option, qint64 otherwise) const;
    const QStringList &words() const { return m_words; }

private:
    QHash<QString, QString> m_options;
    QStringList m_words;
};

} // namespace Tallymere::Cli
