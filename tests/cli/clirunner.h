#pragma once

#include "tests/support/bothstores.h"

#include <QProcess>

// The words of a command line, one by one or in a text as it is typed: "list items --filter \"(ItemID = 1)\"".
struct Words : QStringList
{
    using QStringList::QStringList;
    Words(const QStringList &words)
        : QStringList(words)
    {
    }
    Words(const char *typed)
        : QStringList(QProcess::splitCommand(QString::fromUtf8(typed)))
    {
    }
};

// What one run of the program left.
struct CliResult
{
    int status = -1; // -1: did not end by itself
    QString output;
    QString errors;

    QStringList errorLines() const { return errors.split(u'\n', Qt::SkipEmptyParts); }
    QList<QStringList> rows() const; // the output read as CSV, the header row first
};

std::ostream &operator<<(std::ostream &stream, const CliResult &result);

// Runs the real program on a database of its own: a folder, or the database "corvane" of the test server, which is
// dropped before and after. Files are written to a folder that the program is started in.
class CliRunner
{
public:
    explicit CliRunner(Store store);
    ~CliRunner();

    CliResult run(const Words &words); // with --data or --server in front
    QString output(const Words &words); // of a run that goes well
    QString errors(const Words &words, int status = 1); // of a run that ends so
    CliResult runBare(const Words &words, const QStringList &environment = {});
    std::unique_ptr<QProcess> start(const Words &words);
    static CliResult finish(QProcess &process);

    CliResult import(const QString &kind, const QByteArray &csv); // as file "in.csv"
    QString writeFile(const QString &name, const QByteArray &content); // the name, for the program

    QString folder() const { return m_folder.path(); } // of a local database
    std::unique_ptr<TestUser> anotherUser() const;
    void execute(const QString &script); // SQL text as it stands

    // The rows of a list, each a field's value by name.
    QList<QHash<QString, QString>> list(const Words &words);
    QStringList column(const Words &words, const QString &field);

private:
    Store m_store;
    QTemporaryDir m_folder;
    QTemporaryDir m_work;
};

// Init, then one type, item, vendor and currency of each sort that the tests enter receipts with.
void makeSmallCompany(CliRunner &cli);
