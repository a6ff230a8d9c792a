#pragma once

#include "base/gridcolumn.h"
#include "base/listfilter.h"
#include "data/recordlist.h"
#include "transactions/books/postingkind.h"

#include <functional>
#include <memory>
#include <optional>
#include <QString>
#include <QStringList>

namespace Tallymere {

class DocumentEntry;

// All that tells one kind of document from another: the rules of its entry, its list and its posting, the screens and
// the commands of the command line work from it.
struct DocumentKind
{
    // --- entering a document ------------------------------------------------------------------------------------
    // What numbers new documents. A number outside firstNumber to lastNumber is not given; the counter restarts.
    struct Counters
    {
        QString table; // the control table: "ItemCtl"
        QString key; // its field for the key
        std::optional<QString> number; // its field for the number; none where the key is shown
        qint64 restart = 0;
    };
    struct Entry
    {
        QString screen; // component name: "frmInvReceipt"
        Counters counters;
        QString title; // of one, in its caption and in messages: "Receipt %1"
        QString newTitle; // in the caption of a new one: "New Inventory Receipt"
        QString postedRefusal; // shown when a posted document is about to be edited
        QString numberTaken; // raised when the number or the key exists already
        QString closingQuestion; // when the screen is closed with changes
        QString nothingEntered; // raised when a document without lines is saved
        QString locationGone; // raised when the location is no longer there
        QStringList requiredFields; // of the header, beside what is checked on its own
        std::optional<QString> descriptionField =
            {}; // of the header, for what users say of the document in their words
        QStringList ownFields = {}; // of the header, that do not come along into a document which reverses it
        QList<GridColumn> lineColumns; // of its line grid; the quantity comes first
        QList<GridColumn> toldColumns = {}; // worked out from those, for reading, behind them
        std::function<std::unique_ptr<DocumentEntry>(Engine::Database &, Prompts &)> make;
        bool opensFromHistory = true; // the source of a history row can be looked at
        bool leadsListUnsaved = false; // OK moves the list to the document also where nothing was saved
    };

    // --- its list -----------------------------------------------------------------------------------------------
    struct Filter
    {
        QString screen; // "frmInvReceiptsFilter"
        QString caption; // "Inventory Receipts Filter"
        // The list is narrowed by the first, the location; a choice in another one only switches the filter on.
        QList<FilterBox> boxes = {locationBox()};
        QString notPosted; // the expression for them: "(Posted = false)"
    };
    struct Find
    { // the dialog that finds a document by the number users see
        QString screen; // component name: "frmInvReceiptsFind"
        QString caption; // "Find Receipt"
        QString box; // "editReceipt"
        QString label; // "&Receipt no.:"
        QString notFound; // "Receipt '%1' not found"
    };
    struct Deleting
    {
        Question asks = Question::Loss;
        QString question; // "Delete receipt '%1'?"
        QString nameField; // what the question and the refusal call the document: "ReceiptNo"
        QString posted; // refuses one that has been posted: "Unable to delete receipt '%1'..."
        std::optional<QString> postedBeforeAsking =
            {}; // the same before the question; without it that is asked first
    };
    struct List
    {
        QString screen; // "frmInvReceipts"
        QString caption; // "Inventory Receipts"
        QList<GridColumn> columns;
        QList<ListOrder> orders; // as the menu has them; the first is in force at the start
        bool showsFirstRow = false; // goes to it each time it is shown
        std::function<void(Engine::Table &)> addFields =
            {}; // looked-up ones of its own, before the table is opened
        QString report; // "TrptInvReceipts"
        Filter filter;
        std::optional<Find> find = {};
        Deleting deleting;
    };

    // --- its files, beside location and item, which all kinds have -----------------------------------------------
    struct NumberFor
    { // a number or name that may stand for a key of the header in a file
        QString field; // "VendorID", the key of the other table as well
        QString table; // "Vendor"
        QString numberField; // "VendorNo"
        QString notFound; // "Vendor no. '%1' not found"
    };
    struct Files
    {
        QStringList systemFields = {}; // that a file may not give, beside the keys and the mark
        QList<NumberFor> numbers = {};
        QStringList requiredColumns;
    };

    QString name; // on the command line: "receipts"
    QString oneName; // of one: "receipt"
    QString headerTable; // "IReceipt"
    QString lineTable; // "IRecDet"
    QString keyField; // of both, and of the history rows: "ReceiptID"
    std::optional<QString> numberField; // the number users see, which must be unique; none where the key is shown
    QString dateField; // "ReceiptDate"

    Entry entry;
    List list;
    PostingKind posting;
    Files files;

    QString titleOf(const Engine::DataSet &header) const; // "Receipt 1001"
    static FilterBox locationBox();
    QList<PostingLock> postingLocks() const; // what a posting run holds, in the order in which it is taken
    QStringList keyTables() const { return {headerTable, lineTable}; } // in which a key of a document can stand
    const QString &shownField() const { return numberField ? *numberField : keyField; }
};

} // namespace Tallymere
