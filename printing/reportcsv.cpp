#include "printing/reportcsv.h"

#include "base/csvwriter.h"
#include "base/savedfile.h"
#include "printing/reportlines.h"

using namespace Qt::StringLiterals;

namespace Tallymere::Printing {

namespace {

struct CsvField
{
    int index = 0; // in the values
    int group = -1; // that it names
    bool inDetail = true;
};

QString bandName(Band band)
{
    switch (band) {
    case Band::Opening:
        return u"opening"_s;
    case Band::GroupTotal:
        return u"group total"_s;
    case Band::ReportTotal:
        return u"report total"_s;
    default:
        return u"detail"_s;
    }
}

bool isGiven(const CsvField &field, const ReportLine &line, const ReportLines &lines)
{
    switch (line.band) {
    case Band::GroupTotal:
        return lines.isSummed(field.index, line.band) || (field.group >= 0 && field.group <= line.group);
    case Band::ReportTotal:
        return lines.isSummed(field.index, line.band);
    default:
        return field.group >= 0 || field.inDetail;
    }
}

} // namespace

void writeReportCsv(const ReportLayout &layout, RowReader &rows, QIODevice &output, Progress &progress,
                    int expectedLines)
{
    ReportLines lines(layout, rows);
    CsvWriter writer(output);
    std::vector<CsvField> fields;
    QStringList named;
    writer.field(u"Band"_s);
    const auto addField = [&](const QString &name, int group, bool inDetail) {
        if (named.contains(name))
            return;
        named.append(name);
        fields.push_back({lines.indexOf(name), group, inDetail});
        writer.field(name);
    };
    for (int group = 0; group < layout.groups.size(); ++group)
        for (const QString &name : layout.groups[group].fields)
            addField(name, group, true);
    for (const Column &column : layout.columns)
        addField(column.field, -1, column.inDetail);
    writer.endRecord();

    progress.start(expectedLines);
    for (ReportLine line; lines.next(line); progress.step()) {
        if (line.band == Band::GroupHeading)
            continue;
        writer.field(bandName(line.band));
        for (const CsvField &field : fields) {
            const Engine::Value &value = line.values[static_cast<size_t>(field.index)];
            writer.field(isGiven(field, line, lines) ? value.toText() : QString());
        }
        writer.endRecord();
    }
    writer.flush();
    progress.finish();
}

void saveReportCsv(const ReportLayout &layout, RowReader &rows, const QString &fileName, Progress &progress,
                   int expectedLines)
{
    saveFile(fileName, [&](QIODevice &file) { writeReportCsv(layout, rows, file, progress, expectedLines); });
}

} // namespace Tallymere::Printing
