#include "cli/samplefiles.h"

#include "cli/csv.h"
#include "cli/importer.h"
#include "frame/shared/ruleerror.h"

#include <QCoreApplication>
#include <QFile>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString tr(const char *text) { return QCoreApplication::translate("SampleFiles", text); }

QString samplePath(const QString &name) { return u":/sample/%1.csv"_s.arg(name); }

void openSample(QFile &file)
{
    if (!file.open(QIODevice::ReadOnly))
        throw RuleError(tr("The sample file %1 is missing from the program.").arg(file.fileName()));
}

void bringIn(TDataModuleTallymere &data, const QString &kind, const QString &name, Progress &progress)
{
    QFile file(samplePath(name));
    openSample(file);
    // The year's receipts lie before the periods that are expected now.
    constexpr bool answerYes = true;
    const ImportResult result =
        importFile(data.databaseTallymere(), file, *findImportKind(kind), answerYes, progress);
    if (result.errors.isEmpty())
        return;
    const ImportErrors::Error first = result.errors.inFileOrder().front();
    throw RuleError(tr("The sample kitchen does not fit into this database: %1 (%2.csv, line %3)")
                        .arg(first.message, name)
                        .arg(first.line));
}

// Fiscal year and periods: the kitchen's year runs from December to November.
void setOrganization(TDataModuleTallymere &data)
{
    QFile file(samplePath(u"organization"_s));
    openSample(file);
    CsvReader reader(file);
    reader.next();
    const QStringList fields = reader.fields();
    reader.next();

    Engine::Table company(data.databaseTallymere(), u"Company"_s);
    company.open();
    company.edit();
    for (qsizetype i = 0; i < fields.size(); ++i)
        company.set(fields[i], Engine::Value(reader.fields().at(i)).as(company.field(fields[i]).type));
    company.post();
    data.tblCompany().refresh();
}

} // namespace

void bringInSampleMasters(TDataModuleTallymere &data, Progress &progress)
{
    setOrganization(data);
    for (const QString &kind :
         {u"types"_s, u"locations"_s, u"currencies"_s, u"vendors"_s, u"contacts"_s, u"items"_s})
        bringIn(data, kind, kind, progress);
}

void bringInSampleReceipts(TDataModuleTallymere &data, const QString &name, Progress &progress)
{
    bringIn(data, u"receipts"_s, name, progress);
}

} // namespace Tallymere
