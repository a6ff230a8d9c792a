#pragma once

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

namespace Tallymere {

// A box of a filter dialog: a record that the rows refer to.
struct FilterBox
{
    QString name; // component name: "cboCurrency"
    QString label; // "C&urrency:"
    QString list; // what is chosen in it, as TdmLookUpsInv::list names it: "Currency"
};

// The choices of the filter dialogs that narrow a list to the rows that refer to one record and to those with or
// without a mark ("posted", "suspended").
struct ListFilter
{
    enum class Marked { All, Yes, No };

    int key = 0; // of the record; 0: any
    Marked marked = Marked::All;
};

// What a field of the rows is to be: "ItemID", 10012.
struct KeyOfField
{
    QString field;
    int key = 0; // 0: any
};

// The parts of filter expressions; empty for what does not narrow the list.
QString keyCondition(const QString &field, int key); // "(CurrencyID = 3)"
// Kinds of rows word "not marked" differently: "(Posted = false)" leaves out rows whose mark is empty,
// "(Posted <> true)" shows them.
QString markCondition(ListFilter::Marked marked, const QString &yes, const QString &no);
QString keyConditions(const QList<KeyOfField> &keys); // joined as below
// Each word stands in one of the fields of text.
QString wordsCondition(const QStringList &fields, const QString &words);
QString daysCondition(const QString &field, QDate from, QDate to); // both included; null: open
// Filter conditions, the empty ones left out, joined by " AND ".
QString joinConditions(const QStringList &conditions);

} // namespace Tallymere
