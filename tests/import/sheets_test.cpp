// Spreadsheets as rows of texts: files of another program, what they may hold, and what no program would make.
#include "import/importrows.h"
#include "tests/support/files.h"

#include <zip.h>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

using Parts = QList<std::pair<QByteArray, QByteArray>>; // name, content

QByteArray zipped(const Parts &parts)
{
    zip_source_t *made = zip_source_buffer_create(nullptr, 0, 0, nullptr);
    zip_source_keep(made);
    zip_t *archive = zip_open_from_source(made, ZIP_TRUNCATE, nullptr);
    for (const auto &[name, content] : parts)
        zip_file_add(archive, name.constData(),
                     zip_source_buffer(archive, content.constData(), static_cast<zip_uint64_t>(content.size()), 0),
                     0);
    zip_close(archive);
    zip_stat_t size;
    zip_source_stat(made, &size);
    QByteArray bytes(static_cast<qsizetype>(size.size), '\0');
    zip_source_open(made);
    zip_source_read(made, bytes.data(), size.size);
    zip_source_close(made);
    zip_source_free(made);
    return bytes;
}

// A workbook of one sheet, with the rows as they stand in the file; style 1 is a date, 2 a time.
QByteArray xlsx(const QByteArray &rows, const QByteArray &workbook = {})
{
    return zipped(
        {{"[Content_Types].xml", "<Types/>"},
         {"xl/workbook.xml",
          "<workbook xmlns:r='r'>" + workbook + "<sheets><sheet name='One' r:id='i'/></sheets></workbook>"},
         {"xl/_rels/workbook.xml.rels",
          "<Relationships><Relationship Id='i' Type='x/worksheet' Target='worksheets/a.xml'/></Relationships>"},
         {"xl/styles.xml",
          "<styleSheet><numFmts><numFmt numFmtId='164' formatCode='[h]:mm:ss'/></numFmts><cellXfs><xf/><xf "
          "numFmtId='14'/><xf numFmtId='164'/></cellXfs></styleSheet>"},
         {"xl/worksheets/a.xml", "<worksheet><sheetData>" + rows + "</sheetData></worksheet>"}});
}

QByteArray ods(const QByteArray &rows)
{
    return zipped(
        {{"mimetype", "application/vnd.oasis.opendocument.spreadsheet"},
         {"content.xml",
          "<o:document xmlns:o='o' xmlns:t='t' xmlns:x='x'><t:tracked-changes><t:table/></t:tracked-changes>"
          "<t:table t:name='One'><t:shapes><t:table-row><t:table-cell><x:p>drawn</x:p></t:table-cell>"
          "</t:table-row></t:shapes>"
              + rows + "</t:table></o:document>"}});
}

// Each row as "LINE: a|b", with what is wrong with it behind " ! "; last what ends the reading.
QStringList rowsOf(QByteArray bytes, const QString &sheet = {}, int most = 20)
{
    QStringList told;
    QBuffer file(&bytes);
    file.open(QIODevice::ReadOnly);
    try {
        const auto rows = openImportRows(file, {.sheet = sheet});
        while (told.size() < most && rows->next()) {
            QString row = QString::number(rows->line()) + u": "_s + rows->fields().join(u'|');
            if (!rows->fault().isEmpty())
                row += u" ! "_s + rows->fault();
            told.append(row);
        }
    } catch (const ReadFault &fault) {
        told.append(u"%1 !! %2"_s.arg(fault.line()).arg(fault.message()));
    }
    return told;
}

QString only(const QStringList &told) { return told.size() == 1 ? told.first() : u"%1 rows"_s.arg(told.size()); }

} // namespace

// Made by a spreadsheet program of its own: shared texts, runs of blanks, a merged cell, formulas with their results.
TEST(Sheets, TellWhatAnotherProgramHasWritten)
{
    for (const char *name : {"mixed.ods", "mixed.xlsx"}) {
        SCOPED_TRACE(name);
        const QByteArray bytes = contentOf(u"" SHEETS "/"_s + QLatin1StringView(name));
        EXPECT_EQ(rowsOf(bytes), QStringList(u"1: nothing here"_s));
        QFile file(u"" SHEETS "/"_s + QLatin1StringView(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(openImportRows(file)->sheets(nullptr).join(u' '), u"Notes Items"_s);
        QStringList rows = rowsOf(bytes, u"Items"_s);
        ASSERT_EQ(rows.size(), 4);
        // An office counts from 1899-12-30 in both; the other format has no such day before March 1900.
        rows[2].replace(u"1900-01-16"_s, u"1900-01-15"_s);
        EXPECT_EQ(rows,
                  (QStringList{u"1: Text|Number|Date|Yes|Formula"_s, u"2: two parts  end|0.1|2026-02-28|true|0.3"_s,
                               u"4: merged||1900-01-15|false|ab"_s,
                               u"5: stored|7|7||=1+1 ! The cell D5 shows an error: #DIV/0!"_s}));
        EXPECT_EQ(only(rowsOf(bytes, u"Other"_s)), u"1 !! There is no sheet 'Other', but: Notes, Items"_s);
    }
}

TEST(Sheets, CountDaysFrom1900OrFrom1904)
{
    const QByteArray days =
        "<row><c s='1'><v>1</v></c><c s='1'><v>59</v></c><c s='1'><v>60</v></c><c s='1'><v>61</v>"
        "</c><c s='1'><v>46081.5</v></c><c s='2'><v>0.5</v></c></row>";
    EXPECT_EQ(only(rowsOf(xlsx(days))),
              u"1: 1900-01-01|1900-02-28|1900-02-29|1900-03-01|2026-02-28 12:00:00|0.5"_s);
    EXPECT_EQ(only(rowsOf(xlsx(days, "<workbookPr date1904='1'/>"))),
              u"1: 1904-01-02|1904-02-29|1904-03-01|1904-03-02|2030-03-01 12:00:00|0.5"_s);
}

TEST(Sheets, TellCellsAsTheyAreStored)
{
    EXPECT_EQ(
        rowsOf(xlsx("<row r='3'><c r='B3' t='inlineStr'><is><r><t>a</t></r><rPh><t>x</t></rPh><r><t>_x000A_b</t>"
                    "</r></is></c><c><v>0.30000000000000004</v></c><c><v>12345678901</v></c></row>"
                    "<row r='9'><c r='C9' t='b'><v>1</v></c><c r='F9'><v>1</v></c></row>"
                    "<row r='12'><c r='D12'><f>A1*2</f></c></row><row r='20'><c r='A20'/></row>")),
        (QStringList{u"3: |a\nb|0.30000000000000004|12345678901"_s,
                     u"9: ||true| ! The cell F9 stands under no heading."_s,
                     u"12: ||| ! The formula in D12 has no stored result. Open the file in a spreadsheet "
                     "program and save it."_s}));
    EXPECT_EQ(
        rowsOf(ods("<t:table-row><t:table-cell x:value-type='error' o:value-type='string' o:string-value=''/>"
                   "<t:table-cell o:value-type='string'><x:annotation><x:p>comment</x:p></x:annotation>"
                   "<x:p>one<x:note>foot</x:note>\n  two</x:p><x:p>three</x:p></t:table-cell></t:table-row>"
                   "<t:table-row t:number-rows-repeated='2'><t:covered-table-cell><x:p>under</x:p>"
                   "</t:covered-table-cell><t:table-cell o:value-type='percentage' o:value='0.5'/></t:table-row>"
                   "<t:table-row t:number-rows-repeated='1048570'><t:table-cell t:number-columns-repeated='16384'/>"
                   "</t:table-row>")),
        (QStringList{u"1: |one two\nthree ! The cell A1 shows an error: "_s, u"2: |0.5"_s, u"3: |0.5"_s}));
}

TEST(Sheets, TellWhatSeparatesAFileByItsNames)
{
    EXPECT_EQ(rowsOf("TypeName\nFood; fresh\n"), (QStringList{u"1: TypeName"_s, u"2: Food; fresh"_s}));
    EXPECT_EQ(rowsOf("\n\"A;1\"\tB\nx,y\tz\n"), (QStringList{u"2: A;1|B"_s, u"3: x,y|z"_s}));
}

// What no program makes: each ends with a word, and holds no more of memory or time than a file that is read.
TEST(Sheets, RefuseFilesThatNoProgramMakes)
{
    EXPECT_EQ(only(rowsOf("PK\x03\x04 and nothing more")).section(u':', 0, 0),
              u"1 !! The file is damaged and could not be unpacked"_s);
    EXPECT_EQ(only(rowsOf(zipped({{"a.txt", "text"}}))),
              u"1 !! The file is neither a spreadsheet (XLSX, ODS) nor CSV."_s);
    EXPECT_EQ(only(rowsOf("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1")).section(u'.', 0, 0),
              u"1 !! The file is a spreadsheet of an older format or protected by a password"_s);
    EXPECT_EQ(
        only(rowsOf(xlsx("<row><c t='inlineStr'><is><t>" + QByteArray(20'000'000, 'x') + "</t></is></c></row>"))),
        u"1 !! The file holds a text that is longer than any cell may hold."_s);
    EXPECT_EQ(
        only(rowsOf(xlsx("<row><c t='inlineStr'><is>"
                         + ("<r><t>" + QByteArray(1000, 'x') + "</t></r>").repeated(20'000) + "</is></c></row>"))),
        u"1 !! The file holds a text that is longer than any cell may hold."_s);
    EXPECT_EQ(only(rowsOf(ods("<t:table-row><t:table-cell><x:p>" + QByteArray("<x:s x:c='100000'/>").repeated(200)
                              + "</x:p></t:table-cell></t:table-row>"))),
              u"1 !! The file holds a text that is longer than any cell may hold."_s);
    EXPECT_EQ(only(rowsOf(xlsx(QByteArray("<a>").repeated(1'000'000)))),
              u"1 !! The file is no proper spreadsheet: its elements are nested too deep."_s);
    QByteArray attributes;
    for (int i = 0; i < 100'000; ++i)
        attributes += " a" + QByteArray::number(i) + "=''";
    EXPECT_EQ(only(rowsOf(xlsx("<row" + attributes + "/>"))),
              u"1 !! The file is no proper spreadsheet: an element has too many attributes."_s);
    EXPECT_EQ(only(rowsOf(
                  zipped({{"mimetype", "application/vnd.oasis.opendocument.spreadsheet"},
                          {"content.xml", "<!DOCTYPE d [<!ENTITY e SYSTEM 'file:///etc/hostname'>]><d>&e;</d>"}}))),
              u"1 !! The file is no proper spreadsheet: it declares a document type."_s);
    EXPECT_EQ(rowsOf(xlsx("<row r='1048577'><c><v>1</v></c></row>")),
              QStringList(u"1048576 !! The sheet has more than 1,048,576 rows."_s));
    EXPECT_EQ(only(rowsOf(ods("<t:table-row><t:table-cell o:value-type='float' o:value='1' "
                              "t:number-columns-repeated='2000000000'/></t:table-row>"))),
              u"1 !! The sheet has more than 16,384 columns."_s);
    EXPECT_EQ(only(rowsOf(xlsx("<row><c t='s'><v>0</v></c></row>"))),
              u"1 !! The file is damaged: a text is missing."_s);
    EXPECT_EQ(rowsOf(xlsx("<row><c><v>1</v></c></row><row><c><v>2</v>")).constLast().section(u':', 0, 0),
              u"2 !! The file is damaged"_s);
}
