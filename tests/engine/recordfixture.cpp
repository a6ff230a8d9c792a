#include "tests/engine/recordfixture.h"

using namespace Engine;
using namespace Qt::StringLiterals;

TableLayout RecordTest::vendor()
{
    return {u"Vendor"_s,
            {{u"VendorID"_s, FieldType::Integer, 0},
             {u"VendorNo"_s, FieldType::Text, 10},
             {u"VendorName"_s, FieldType::Text, 20},
             {u"Balance"_s, FieldType::Money, 0},
             {u"Discount"_s, FieldType::Float, 0},
             {u"Suspended"_s, FieldType::Boolean, 0},
             {u"Since"_s, FieldType::Date, 0},
             {u"Days"_s, FieldType::SmallInt, 0},
             {u"Notes"_s, FieldType::Memo, 0}},
            {{u""_s, u"VendorID"_s, IndexOption::Primary},
             {u"VENDORNO"_s, u"VendorNo"_s, IndexOption::None},
             {u"VENDORNAME1"_s, u"VendorName"_s, IndexOption::CaseInsensitive},
             {u"SINCE"_s, u"Since;VendorID"_s, IndexOption::Descending}}};
}

TableLayout RecordTest::control()
{
    return {u"VendCtl"_s, {{u"NextID"_s, FieldType::Integer, 0}, {u"NextNo"_s, FieldType::Integer, 0}}, {}};
}

TableLayout RecordTest::document()
{
    return {u"Document"_s,
            {{u"DocumentID"_s, FieldType::AutoInc, 0},
             {u"VendorID"_s, FieldType::Integer, 0},
             {u"Posted"_s, FieldType::Boolean, 0}},
            {{u""_s, u"DocumentID"_s, IndexOption::Primary}, {u"VENDORID"_s, u"VendorID"_s, IndexOption::None}}};
}

TableLayout RecordTest::line()
{
    return {u"Line"_s,
            {{u"DocumentID"_s, FieldType::Integer, 0},
             {u"Seq"_s, FieldType::SmallInt, 0},
             {u"Quantity"_s, FieldType::Float, 0},
             {u"Text"_s, FieldType::Text, 10}},
            {{u""_s, u"DocumentID;Seq"_s, IndexOption::Primary},
             {u"DOCUMENTID"_s, u"DocumentID"_s, IndexOption::None}}};
}

void RecordTest::addVendors()
{
    const struct
    {
        QString name;
        Value suspended;
        QDate since;
        double balance;
    } rows[] = {{u"Corner"_s, false, QDate(2003, 5, 1), 10.5},
                {u"apple"_s, true, QDate(2004, 1, 1), 0},
                {u"Bell"_s, Value(), QDate(), -3.25},
                {QString(), true, QDate(2004, 1, 1), 100},
                {u"Äpfel"_s, false, QDate(2001, 12, 31), 7}};
    Table table(database(), u"Vendor"_s);
    table.open();
    int id = 0;
    for (const auto &row : rows) {
        table.append();
        table.set(u"VendorID", ++id);
        table.set(u"VendorNo", QString::number(1000 + id));
        if (!row.name.isNull())
            table.set(u"VendorName", row.name);
        table.set(u"Suspended", row.suspended);
        table.set(u"Since", row.since);
        table.set(u"Balance", row.balance);
        table.post();
    }
}

void RecordTest::addDocuments()
{
    Table documents(database(), u"Document"_s);
    Table lines(database(), u"Line"_s);
    documents.open();
    lines.open();
    for (int document = 1; document <= 3; ++document) {
        documents.append();
        documents.set(u"VendorID", document);
        documents.post();
        for (int seq = 1; seq <= document; ++seq) {
            lines.append();
            lines.set(u"DocumentID", document);
            lines.set(u"Seq", seq);
            lines.set(u"Quantity", document * 10 + seq);
            lines.post();
        }
    }
}

QString RecordTest::names(DataSet &set, const QString &field)
{
    QStringList names;
    for (set.first(); !set.atEnd(); set.next())
        names << (set.value(field).isNull() ? u"-"_s : set.text(field));
    return names.join(u' ');
}
