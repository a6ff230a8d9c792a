#include "printing/reportcsv.h"

#include "base/savedfile.h"
#include "base/xlsxwriter.h"
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

// Whole amounts are shown with decimals as well.
bool showsAmounts(const Column &column)
{
    return column.display && column.align == Align::Decimal && column.display(Engine::Value(1)).endsWith("00"_L1);
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

void writeReportRows(const ReportLayout &layout, RowReader &rows, RowWriter &writer, Progress &progress,
                     int expectedLines)
{
    ReportLines lines(layout, rows);
    std::vector<CsvField> fields;
    QStringList named;
    writer.title(u"Band"_s);
    const auto addField = [&](const QString &name, int group, bool inDetail, bool ofAmounts) {
        if (named.contains(name))
            return;
        named.append(name);
        fields.push_back({lines.indexOf(name), group, inDetail});
        writer.title(name, ofAmounts);
    };
    for (int group = 0; group < layout.groups.size(); ++group)
        for (const QString &name : layout.groups[group].fields)
            addField(name, group, true, false);
    for (const Column &column : layout.columns)
        addField(column.field, -1, column.inDetail, showsAmounts(column));
    writer.endRecord();

    progress.start(expectedLines);
    for (ReportLine line; lines.next(line); progress.step()) {
        if (line.band == Band::GroupHeading)
            continue;
        writer.field(bandName(line.band));
        for (const CsvField &field : fields) {
            const Engine::Value &value = line.values[static_cast<size_t>(field.index)];
            writer.field(isGiven(field, line, lines) ? value : Engine::Value());
        }
        writer.endRecord();
    }
    writer.flush();
    progress.finish();
}

void writeReportCsv(const ReportLayout &layout, RowReader &rows, QIODevice &output, Progress &progress,
                    int expectedLines, CsvTexts texts)
{
    CsvWriter writer(output, texts);
    writeReportRows(layout, rows, writer, progress, expectedLines);
}

void saveReportXlsx(const ReportLayout &layout, RowReader &rows, const QString &fileName, Progress &progress,
                    int expectedLines)
{
    saveFile(fileName, [&](QIODevice &file) {
        XlsxWriter writer(file, layout.title);
        writeReportRows(layout, rows, writer, progress, expectedLines);
    });
}

void saveReportCsv(const ReportLayout &layout, RowReader &rows, const QString &fileName, Progress &progress,
                   int expectedLines, CsvTexts texts)
{
    saveFile(fileName,
             [&](QIODevice &file) { writeReportCsv(layout, rows, file, progress, expectedLines, texts); });
}

} // namespace Tallymere::Printing
