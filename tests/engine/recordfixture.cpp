#include "tests/engine/recordfixture.h"

#include "tests/support/madelayout.h"

using namespace Engine;
using namespace Qt::StringLiterals;

TableLayout RecordTest::vendor()
{
    return madeLayout(u"Vendor"_s,
                      u"VendorID integer, VendorNo text 10, VendorName text 20, Balance money, Discount float, "
                      "Suspended boolean, Since date, Days small, Notes memo"_s,
                      u"VendorID primary, VENDORNO VendorNo, VENDORNAME1 VendorName folded, "
                      "SINCE Since;VendorID descending"_s);
}

TableLayout RecordTest::document()
{
    return madeLayout(u"Document"_s, u"DocumentID counted, VendorID integer, Posted boolean"_s,
                      u"DocumentID primary, VENDORID VendorID"_s);
}

TableLayout RecordTest::line()
{
    return madeLayout(u"Line"_s, u"DocumentID integer, Seq small, Quantity float, Text text 10"_s,
                      u"DocumentID;Seq primary, DOCUMENTID DocumentID"_s);
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
