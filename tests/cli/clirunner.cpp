#include "tests/cli/clirunner.h"
#include "tests/support/files.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 120'000;
const auto serverDatabase = u"corvane"_s; // the one the program knows

} // namespace

QList<QStringList> CliResult::rows() const { return csvRows(output.toUtf8()); }

std::ostream &operator<<(std::ostream &stream, const CliResult &result)
{
    return stream << "status " << result.status << "\n"
                  << result.output.toStdString() << "\n"
                  << result.errors.toStdString();
}

CliRunner::CliRunner(Store store)
    : m_store(store)
{
    if (store == Store::Remote)
        dropTestDatabase(serverDatabase);
}

CliRunner::~CliRunner()
{
    if (m_store == Store::Local)
        return;
    try {
        dropTestDatabase(serverDatabase);
    } catch (const std::exception &error) {
        qWarning("The test's database stays behind: %s", error.what());
    }
}

std::unique_ptr<TestUser> CliRunner::anotherUser() const
{
    auto other = std::make_unique<TestUser>(u"anna"_s, u"Corvane"_s);
    if (m_store == Store::Local)
        other->database.directory = m_folder.path();
    else
        other->useTestServer(serverDatabase);
    return other;
}

void CliRunner::execute(const QString &script) { anotherUser()->database.connection().execute(script); }

std::unique_ptr<QProcess> CliRunner::start(const Words &words)
{
    auto process = std::make_unique<QProcess>();
    process->setWorkingDirectory(m_work.path());
    const bool local = m_store == Store::Local;
    QStringList arguments(local ? u"--data"_s : u"--server"_s);
    arguments << (local ? m_folder.path() : testServerAddress()) << words;
    process->start(QStringLiteral(TALLYMERE_PROGRAM), arguments);
    return process;
}

CliResult CliRunner::finish(QProcess &process)
{
    CliResult result;
    if (process.waitForFinished(patience) && process.exitStatus() == QProcess::NormalExit)
        result.status = process.exitCode();
    result.output = QString::fromUtf8(process.readAllStandardOutput());
    result.errors = QString::fromUtf8(process.readAllStandardError());
    return result;
}

CliResult CliRunner::run(const Words &words) { return finish(*start(words)); }

QString CliRunner::output(const Words &words)
{
    const CliResult result = run(words);
    EXPECT_EQ(result.status, 0) << result;
    return result.output;
}

QString CliRunner::errors(const Words &words, int status)
{
    const CliResult result = run(words);
    EXPECT_EQ(result.status, status) << result;
    return result.errors;
}

CliResult CliRunner::runBare(const Words &words, const QStringList &environment)
{
    QProcess process;
    process.setWorkingDirectory(m_work.path());
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (const QString &variable : environment)
        variables.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    process.setProcessEnvironment(variables);
    process.start(QStringLiteral(TALLYMERE_PROGRAM), words);
    return finish(process);
}

QString CliRunner::writeFile(const QString &name, const QByteArray &content)
{
    putContent(m_work.filePath(name), content);
    return name;
}

CliResult CliRunner::import(const QString &kind, const QByteArray &csv)
{
    return run({u"import"_s, kind, writeFile(u"in.csv"_s, csv)});
}

QList<QHash<QString, QString>> CliRunner::list(const Words &words)
{
    QList<QStringList> rows = csvRows(output(words).toUtf8());
    if (rows.isEmpty())
        return {};
    const QStringList names = rows.takeFirst();
    QList<QHash<QString, QString>> records;
    for (const QStringList &row : rows) {
        QHash<QString, QString> record;
        for (qsizetype i = 0; i < names.size(); ++i)
            record.insert(names[i], row.value(i));
        records.append(record);
    }
    return records;
}

QStringList CliRunner::column(const Words &words, const QString &field)
{
    QStringList values;
    for (const auto &record : list(words))
        values.append(record.value(field));
    return values;
}

void makeSmallCompany(CliRunner &cli)
{
    cli.output("init");
    // A new database takes the current year; the tests' documents are of a fixed one.
    cli.execute(u"UPDATE Company SET FiscalYear = 2026"_s);
    const std::pair<QString, QByteArray> files[] = {
        {u"currencies"_s, "CurrencyName,ExchangeRate\nEuro,1.5\n"},
        {u"types"_s, "TypeName,Inventory\nProduce,true\n"},
        {u"items"_s,
         "ItemNo,ItemDescription,TypeName,Suspended\n"
         "A1,Apples,Produce,\nB2,\"Beans, dried\",Produce,false\nC3,Old,Produce,true\n"},
        {u"vendors"_s,
         "VendorNo,VendorName,CurrencyName,Suspended\nV1,Home,,\nV2,Abroad,Euro,\nV3,Closed,,true\n"}};
    for (const auto &[kind, csv] : files)
        ASSERT_EQ(cli.import(kind, csv).status, 0);
}
