#include "host/sample/samplefiles.h"

#include "base/csvreader.h"
#include "base/ruleerror.h"
#include "host/sample/texts.h"
#include "import/importer.h"

#include <map>
#include <QBuffer>
#include <QFile>
#include <set>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString samplePath(const QString &name) { return u":/sample/%1.csv"_s.arg(name); }

void openSample(QFile &file)
{
    if (!file.open(QIODevice::ReadOnly))
        throw RuleError(SampleTexts::tr("The sample file %1 is missing from the program.").arg(file.fileName()));
}

void bringIn(TDataModuleTallymere &data, const QString &kind, const QString &name, QIODevice &file,
             Progress &progress)
{
    // The year's documents lie before the periods that are expected now.
    constexpr bool answerYes = true;
    const ImportResult result =
        importFile(data.databaseTallymere(), file, *findImportKind(kind), answerYes, progress);
    if (result.errors.isEmpty())
        return;
    const ImportErrors::Error first = result.errors.inFileOrder().front();
    throw RuleError(SampleTexts::tr("The sample kitchen does not fit into this database: %1 (%2.csv, line %3)")
                        .arg(first.message, name)
                        .arg(first.line));
}

void bringIn(TDataModuleTallymere &data, const QString &kind, const QString &name, Progress &progress)
{
    QFile file(samplePath(name));
    openSample(file);
    bringIn(data, kind, name, file, progress);
}

// The file of a kind of documents in pieces, each with the titles, by the period in the second and third column.
std::map<int, QByteArray> byPeriods(const QString &kind)
{
    QFile file(samplePath(kind));
    openSample(file);
    const QByteArray titles = file.readLine();
    std::map<int, QByteArray> pieces;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine();
        const QByteArrayList fields = line.split(',');
        QByteArray &piece = pieces[fields.value(2).toInt() * 100 + fields.value(1).toInt()];
        piece += piece.isEmpty() ? titles + line : line;
    }
    return pieces;
}

// The rows of a sample file as they stand, each into the record that the table has been made ready for.
void takeRows(Engine::Table &table, const QString &name, const std::function<void()> &makeReady)
{
    QFile file(samplePath(name));
    openSample(file);
    CsvReader reader(file);
    reader.next();
    const QStringList fields = reader.fields();
    while (reader.next()) {
        makeReady();
        for (qsizetype i = 0; i < fields.size(); ++i)
            table.set(fields[i], Engine::Value(reader.fields().at(i)).as(table.field(fields[i]).type));
        table.post();
    }
}

// Fiscal year and periods: the kitchen's year runs from December to November.
void setOrganization(TDataModuleTallymere &data)
{
    Engine::Table company(data.databaseTallymere(), u"Company"_s);
    company.open();
    takeRows(company, u"organization"_s, [&] { company.edit(); });
    data.tblCompany().refresh();
}

// What the host has to synchronize with. Rows that it has already are its own and stay alone.
void fillHostTable(Engine::Database &database, const QString &table, const QString &name)
{
    Engine::Table rows(database, table);
    rows.open();
    if (rows.isEmpty())
        takeRows(rows, name, [&] { rows.insert(); });
}

} // namespace

void bringInSampleMasters(TDataModuleTallymere &data, Progress &progress)
{
    setOrganization(data);
    for (const QString &kind :
         {u"types"_s, u"locations"_s, u"currencies"_s, u"taxes"_s, u"vendors"_s, u"contacts"_s, u"items"_s})
        bringIn(data, kind, kind, progress);
    fillHostTable(data.databaseTallymere(), u"Locatns"_s, u"places"_s);
    fillHostTable(data.databaseTallymere(), u"Items"_s, u"meals"_s);
}

QList<int> samplePeriods(const QStringList &kinds)
{
    std::set<int> periods;
    for (const QString &kind : kinds)
        for (const auto &[period, piece] : byPeriods(kind))
            periods.insert(period);
    return {periods.begin(), periods.end()};
}

void bringInSampleDocuments(TDataModuleTallymere &data, const QString &kind, int period, Progress &progress)
{
    std::map<int, QByteArray> pieces = byPeriods(kind);
    if (!pieces.contains(period))
        return;
    QBuffer piece(&pieces[period]);
    piece.open(QIODevice::ReadOnly);
    bringIn(data, kind, kind, piece, progress);
}

void bringInOpenDocuments(TDataModuleTallymere &data, const QString &kind, Progress &progress)
{
    bringIn(data, kind, kind + "-unposted"_L1, progress);
}

} // namespace Tallymere
