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
    store.execute(u"INSERT INTO Vendor (VendorID, VendorNo, VendorName, Suspended, Since, Balance) VALUES "
                  "(1, '1001', 'Corner', false, '2003-05-01', 10.5), (2, '1002', 'apple', true, '2004-01-01', 0), "
                  "(3, '1003', 'Bell', NULL, NULL, -3.25), (4, '1004', NULL, true, '2004-01-01', 100), "
                  "(5, '1005', 'Äpfel', false, '2001-12-31', 7)"_s);
}

void RecordTest::addDocuments()
{
    store.execute(u"INSERT INTO Document (VendorID) VALUES (1), (2), (3); "
                  "INSERT INTO Line (DocumentID, Seq, Quantity) VALUES "
                  "(1, 1, 11), (2, 1, 21), (2, 2, 22), (3, 1, 31), (3, 2, 32), (3, 3, 33)"_s);
}

QString RecordTest::names(DataSet &set, const QString &field)
{
    QStringList names;
    for (set.first(); !set.atEnd(); set.next())
        names << (set.value(field).isNull() ? u"-"_s : set.text(field));
    return names.join(u' ');
}
