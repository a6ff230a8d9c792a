#include "base/csvwriter.h"
#include "tests/support/files.h"

using namespace Qt::StringLiterals;
using Tallymere::CsvReader;
using Tallymere::CsvWriter;
using Tallymere::ReadFault;

namespace {

// "line: field|field" for each record, and what ended the reading.
QStringList read(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    CsvReader reader(buffer);
    QStringList records;
    try {
        while (reader.next())
            records.append(QString::number(reader.line()) + ": "_L1 + reader.fields().join(u'|'));
    } catch (const ReadFault &error) {
        records.append(u"%1! %2"_s.arg(error.line()).arg(error.message()));
    }
    return records;
}

TEST(CsvReading, GivesTheRecordsWithTheirLines)
{
    const QString notUtf8 = u"! The text is not UTF-8. Save the file in UTF-8 and try again."_s;
    const QString tooLarge = u"! There is a text here that is larger than any field takes."_s;
    const std::tuple<const char *, QByteArray, QStringList> cases[] = {
        {"Nothing", "", {}},
        {"LineEnds", "a,b\r\nc,d\ne,f", {u"1: a|b"_s, u"2: c|d"_s, u"3: e|f"_s}},
        {"EmptyFields", ",\n,,x,\n", {u"1: |"_s, u"2: ||x|"_s}},
        {"BlanksStay", " a , b\n", {u"1:  a | b"_s}},
        {"ByteOrderMark", "\xEF\xBB\xBFItemNo,\xEF\xBB\xBFx\n", {u"1: ItemNo|\uFEFFx"_s}},
        {"Quotes", "\"a,b\",\"say \"\"no\"\"\",\"\"\n", {u"1: a,b|say \"no\"|"_s}},
        {"LineBreakInQuotes", "\"a\r\nb\",c\nd,e\n", {u"1: a\nb|c"_s, u"3: d|e"_s}},
        {"EmptyLinesBetween", "a\n\nb\n", {u"1: a"_s, u"3: b"_s}},
        {"QuoteNeverClosed", "a\n\"b\nc,d\n", {u"1: a"_s, u"2! The quote that opens on this line never closes."_s}},
        {"QuoteWithin",
         "a\nb\"c\n",
         {u"1: a"_s, u"2! There is a quote inside a field that does not begin with one."_s}},
        {"TextAfterQuote", "\"a\"b,c\n", {u"1! There is text after a closing quote."_s}},
        {"Latin1", "a\nCaf\xE9\n", {u"1: a"_s, u"2"_s + notUtf8}},
        {"Utf16", QByteArrayView("\xFF\xFE\x61\0,\0", 6).toByteArray(), {u"1"_s + notUtf8}},
        {"ZeroByte",
         QByteArray("a\0b\n", 4),
         {u"1! There is a zero byte in the text. This is no CSV file in UTF-8."_s}},
        {"Huge", "a\n" + QByteArray(17'000'000, 'x'), {u"1: a"_s, u"2"_s + tooLarge}},
        {"HugeOfLines", "a\n\"" + QByteArray("xxxxxxx\n").repeated(2'100'000), {u"1: a"_s, u"2"_s + tooLarge}},
    };
    for (const auto &[name, bytes, records] : cases)
        EXPECT_EQ(read(bytes), records) << name << '\n' << read(bytes).join(u'\n').left(200).toStdString();
}

TEST(CsvWriting, WhatIsWrittenReadsBackTheSame)
{
    const QList<QStringList> records = {
        {u"a"_s, u"b,c"_s, u"say \"no\""_s},
        {QString(), QString(), QString()},
        {QString()},
        {u"line\nbreak"_s, u" blanks "_s, u"Küche €"_s},
        {u"x"_s.repeated(100'000)},
    };
    const QByteArray csv = writtenBy([&](QIODevice &file) {
        CsvWriter writer(file);
        for (const QStringList &record : records) {
            for (const QString &field : record)
                writer.field(field);
            writer.endRecord();
        }
        writer.flush();
    });
    EXPECT_TRUE(csv.startsWith("a,\"b,c\",\"say \"\"no\"\"\"\r\n"));
    EXPECT_EQ(csvRows(csv), records);
}

TEST(CsvWriting, TextsThatLookLikeFormulasAreDefusedWhereThatIsWanted)
{
    const auto written = [](Tallymere::CsvTexts texts) {
        return writtenBy([texts](QIODevice &file) {
            CsvWriter writer(file, texts);
            for (const char *text : {"=1+1", "+1", "-1", "@a", "\tb", "\rc", "1-1", ""})
                writer.field(QString::fromLatin1(text));
            writer.field(Engine::Value(-2.5));
            writer.field(Engine::Value(u"-2.5"_s));
            writer.endRecord();
            writer.flush();
        });
    };
    EXPECT_EQ(written(Tallymere::CsvTexts::AsStored), "=1+1,+1,-1,@a,\tb,\"\rc\",1-1,,-2.5,-2.5\r\n");
    EXPECT_EQ(written(Tallymere::CsvTexts::Defused), "'=1+1,'+1,'-1,'@a,'\tb,\"'\rc\",1-1,,-2.5,'-2.5\r\n");
}

} // namespace
