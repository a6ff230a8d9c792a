#pragma once

#include "base/glyph.h"
#include "base/gridcolumn.h"
#include "base/listfilter.h"
#include "data/recordlist.h"
#include "engine/records/table.h"
#include "engine/store/answer.h"
#include "engine/values/fieldvalue.h"

#include <functional>
#include <QList>
#include <QString>

namespace Tallymere {

// All that tells one master table from another: the rules of its records, its list, its import. The record and list
// rules, the screens, and the commands "import" and "list" work from it. What is empty does not apply.
struct MasterKind
{
    struct Required
    {
        QString field;
        QString message; // "Field 'Item no.' must have a value"
    };
    struct Reference
    { // the field is the key of a row of another table
        QString field;
        QString table; // its key field has the same name
        QString nameField; // may stand for the key in a file: "TypeName"
        QString gone; // raised when the row is not there any more: "Item Type no longer exists"
        QString notFound; // of a name in a file: "Item type '%1' not found"
    };
    struct Limits
    { // of a whole number in a file
        QString field;
        qint64 lowest;
        qint64 highest;
    };
    struct Refusal
    { // rows that keep a record from being deleted
        QString table;
        QStringList fields; // any of which holds the record's key
        QString reason; // "Item(s) exist for this item type"
    };

    // --- a record -----------------------------------------------------------------------------------------------
    struct Record
    {
        QString counterTable; // "ItemCtl"; empty where keys are not counted
        QString numberCounter; // "NextItemNo": from 1001 to 10,000,000, then again from 1001
        QString keyCounter; // "NextItemID": from 10000 on
        bool keyByEngine = false; // the key is an auto-increment field
        QString screen; // its component name: "frmItemInv"
        QString caption; // "Item"
        QString newCaption; // "New Item"
        bool namesCaption = true; // the name takes the caption's place
        bool comesInNumbers = false; // often several are entered one after the other: "Save and New"
        QList<Engine::FieldValue> defaults;
        // Defaults that have to be found out, of these fields: asked at once, and set by what that returns.
        std::function<Engine::Answer<void>(Engine::Table &)> preset;
        QStringList presetFields;
        QStringList copiedFields; // what a copy takes over from its original
        QString copyCaption; // "New (copied) Item"
        // The checks before saving, in this order. A number that is 0 counts as empty.
        QList<Required> required;
        std::function<void(const Engine::Table &)> check;
        QList<Reference> references;
        QString taken; // raised when the number or the key exists already
        QString notFound; // raised for a number that no record has: "Item no. '%1' not found"
    };

    // --- its list -----------------------------------------------------------------------------------------------
    struct List
    {
        QString screen; // "frmItemsInv"
        QString caption; // "Items"
        QList<GridColumn> columns;
        QList<ListOrder> orders; // as the menu has them
        int firstOrder = 0; // which of them is in force at the start
        QString report; // of the list: "TrptItems"; empty: it is not printed
        // What its filter dialog narrows it to: the rows that refer to one record, and those that are suspended or not.
        QString filterField; // "CurrencyID"
        QString
            notSuspended; // "(Suspended <> true)" shows rows that do not say, "(Suspended = false)" leaves them out
        // Deleting: records up to a key belong to the system; the others are asked for and then refused by the first
        // refusal that applies.
        int systemKeys = 0;
        QString systemRecord; // "System-defined Item Types can't be deleted!"
        QString undeletable; // "Unable to delete '%1'..."; empty: just that
        QList<Refusal> refusals;
        QStringList ownedTables; // whose rows with the record's key go with it
    };

    // --- its command in the main window -------------------------------------------------------------------------
    // What happens to a list that is open already: it is shown from its first row, after its filter was lifted or as
    // it is filtered; or it only comes to the front.
    enum class Reopening { ReadAnew, LiftFilter, JustShow };
    struct Command
    {
        QString action; // "ActionEditItems"
        QString caption; // "Edit Items"
        QString rights; // what the user's rights are asked for, as rightsOf() takes it: "ItemTypes/Item Types"
        bool isMain = false; // stands in the Edit menu itself, not under "Other"
        Reopening reopening = Reopening::ReadAnew;
        Glyph glyph = Glyph::Records;
    };

    // --- its files ----------------------------------------------------------------------------------------------
    struct Files
    {
        QStringList systemFields; // that a file may not give: the key, and what no screen sets
        QList<Limits> limits;
        QStringList longTexts; // fields that may be given longer than what is kept of them
    };

    QString name; // on the command line: "types"
    QString oneName; // of one: "type"
    QString table; // "Item"
    QString keyField; // "ItemID"; taken from a counter, else a default, else the highest key plus 1
    QString numberField; // the number that users see and that must be unique
    QStringList nameFields; // that name a record to the user, joined by ": " ("1001: Flour")
    std::function<void(Engine::Table &)> addFields; // looked-up and calculated ones, before the table is opened
    std::function<void(Engine::Table &)> formatFields; // labels, formats and parsing, once it is open

    Record record;
    List list;
    Command command;
    Files files;

    QString nameField() const { return nameFields.constLast(); } // the name without the number
    QString recordName(const Engine::DataSet &row) const; // "1001: Flour"
    QStringList keyTables() const { return QStringList(table) + list.ownedTables; } // that a key can stand in
    bool hasDefault(const QString &field) const; // one of the defaults, not a preset one
    QString filterExpression(const ListFilter &filter) const; // empty: everything is shown
};

} // namespace Tallymere
