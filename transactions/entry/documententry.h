#pragma once

#include "base/prompts.h"
#include "data/fields.h"
#include "data/fiscalperiod.h"
#include "data/numbercounter.h"
#include "engine/records/table.h"
#include "engine/store/database.h"
#include "engine/store/session.h"
#include "transactions/documents/begundocument.h"
#include "transactions/documents/documentkind.h"
#include "transactions/entry/documentvisit.h"
#include "transactions/entry/linecheck.h"
#include "transactions/entry/linestock.h"

namespace Tallymere {

// Entering one document, a header and its lines: the rules between the two tables and the screen.
//
// The screen binds its widgets to header() and lines() and calls save() or cancel(); everything else happens in the
// tables' own edits, so that a table edited from a script obeys the same rules. A refused step raises RuleError
// with the message to show and, as its column, the field of header() or lines() that the cursor goes to (LineGrid
// for the grid as a whole); SilentAbort means that the user has seen a message already.
//
// Lines are written as they are completed. The first change of a visit locks the document, reads its lines anew and
// keeps a copy of them, from which cancel() brings them back. When another user has deleted the line to be changed,
// or another one has its number, the change is refused. Numbers are taken when a document is created and are not given
// back.
class DocumentEntry
{
public:
    // The column of an error that concerns the lines as a whole.
    static constexpr QLatin1StringView LineGrid = DocumentVisit::LineGrid;

    virtual ~DocumentEntry();
    DocumentEntry(const DocumentEntry &) = delete;
    DocumentEntry &operator=(const DocumentEntry &) = delete;

    // Where key and number of a new document come from: from their counters at once, unless an import has set a source
    // that keeps the counters in hand for all of its documents.
    NumberSource numbers;

    // Opens both tables. Labels and formats of their fields are known afterwards.
    void open();
    void close();

    // Inserts a header with its numbers and defaults. A number that is given stands as it is and leaves the counter
    // of the numbers alone.
    void newDocument(const QString &number = {});
    bool openDocument(int key); // false when there is no such document
    // A new document with the stored lines and the header of one that was begun and left. What can no longer be chosen
    // is empty in it.
    void takeUp(std::unique_ptr<BegunDocument> left);

    const DocumentKind &kind() const { return m_kind; }
    Prompts &prompts() const { return m_prompts; }
    Engine::Table &header() { return m_header; }
    Engine::Table &lines() { return m_lines; }
    const Engine::Table &header() const { return m_header; }
    const Engine::Table &lines() const { return m_lines; }
    int key() const { return m_header.integer(m_kind.keyField); }
    bool isPosted() const { return m_header.boolean(Fields::Posted); }

    // Saves what is being edited: header and line, after their checks. Raises RuleError, with both left in edit,
    // when one of them refuses.
    void save();
    // Drops the changes of this visit and ends it. Lines are as they were when it began, with their former numbers.
    // Where a lost connection or somebody else stands in the way of that, the user is told what is stored.
    void cancel();

    // What closing the screen by other means than OK and Cancel has to do.
    enum class Closing { Free, Drop, Ask }; // just close; cancel() without asking; ask, then save() or cancel()
    Closing closing() const;

    bool wasSaved() const { return m_wasSaved; } // the header was saved at least once in this visit

    virtual QString caption() const; // the kind's title, of a new document without a number its newTitle

    // Chooses what a key of the header stands for by the number that the user types for it, with the rules for that.
    // False when the kind has none for the field.
    virtual bool chooseByNumber(const QString &field, const QString &number);
    // A choice of the user: puts the header into edit if need be.
    void chooseInHeader(const QString &field, const Engine::Value &value);
    // The same for the document's date. One more than a year away is asked about, as the one that is typed is by
    // RuleQuestion; SilentAbort when the user does not want it.
    void chooseDate(QDate date);

    // --- lines -------------------------------------------------------------------------------------------------
    // The column of the line grid that the user is in, by field name; a new item is judged by it (see LineCheck).
    void setLineColumn(const QString &field) { m_check.setColumn(field); }
    // Puts the item into the current line, putting that into edit.
    void chooseItem(int itemId);
    // The same by a typed item number, in which letter case is second to a number found as typed; an empty text clears
    // the item. Raises when there is no such item.
    void chooseItemByNumber(const QString &itemNo);
    // The same by its description, whatever its letter case.
    void chooseItemByDescription(const QString &description);
    // The same for what a scanner has named. A line that has another item already stays, unless the code was meant for just
    // that, and a new one gets the item.
    void chooseScannedItem(int itemId, bool mayReplace);
    // Goes to the line of an item, of several to that with the quantity. False when there is none, or a line is in edit.
    bool goToLineOf(int itemId, double quantity);
    void newLine(); // appends a line
    void removeLine(); // deletes the current line; a line being entered is dropped
    // A new line with what another one holds: the values by the names of the fields, where there is something to take
    // over. It is in edit afterwards, or nothing of it is there when it is refused.
    void newLineWith(const std::function<std::optional<Engine::Value>(const QString &field)> &held);
    // The stored line that was taken out last, by its place and item: "Line 3 (Rice)". Empty where there is none, a line has
    // been written since, or the visit is over.
    QString takenOut() const;
    void putBack(); // that one as the last line, under the rules of entry
    // Several lines at once. Each step fills the new line that it finds in hand.
    //
    // As if they were to be written, one after the other: the document is locked, and what the steps do is dropped.
    void tryLines(int count, const std::function<void(int line)> &fillAndLook);
    // Refuses of the line in hand what would be refused when it is written, and gives what would be asked.
    std::optional<QString> judgeLine();
    // Writes all of them, or none where one is refused or cannot be stored. Their figures are not asked about.
    void addLines(int count, const std::function<void(int line)> &fill);
    bool takesText(const QString &column) const; // it is stored, or chooses the item
    int itemByNumber(const QString &itemNo) const { return m_check.itemByNumber(itemNo); }
    int itemByDescription(const QString &description) const { return m_check.itemByDescription(description); }
    // Besides what is stored, lines() tells by these fields what is on hand and what will be (see LineStock), as it was
    // when the visit began or refreshStock() was last called.
    static constexpr Engine::FieldName<Engine::FieldType::Float> OnHand{u"OnHand"};
    static constexpr Engine::FieldName<Engine::FieldType::Float> Afterwards{u"Afterwards"};
    void refreshStock() { m_stock.forget(); }
    // A value that an empty column of the line in hand may be given with one key, and where it comes from.
    struct Offer
    {
        Engine::Value value;
        QString origin; // "Last cost from this vendor: 4.20, on 11 Feb 26"
    };
    virtual std::optional<Offer> offerFor(const QString &) { return std::nullopt; }
    virtual QString totalText() { return {}; } // what the lines come to; empty: nothing, or no amount of money
    // Refuses a line without a quantity. Not every kind does so by itself: on a screen it counts as nothing.
    void requireQuantity() const { m_check.requireQuantity(); }

protected:
    // The kind outlives the object.
    DocumentEntry(Engine::Database &database, Prompts &prompts, const DocumentKind &kind);

    Engine::Database &database() const { return m_header.database(); }
    QDate today() const { return database().session().today(); }

    // --- what the kinds of documents do differently ----------------------------------------------------------
    virtual void visitBegins() { } // to a document new or opened, or anew once its changes are stored or dropped
    virtual void configureFields(); // labels, formats and checks of fields, once the tables are open
    // Further defaults of a new header: asked with its numbers, and set by what that returns.
    virtual Engine::Answer<void> presetHeader()
    {
        return [] {};
    }
    virtual void takenUp() { } // what the header keeps about all lines is to be made anew
    virtual void checkComplete() { } // before everything else when the header is saved
    // What checkReferences() looks for, by table and key field; it is asked for together.
    virtual QList<std::pair<QString, QString>> references() const;
    virtual void checkReferences(); // after the period: what the header names, and that there are lines
    virtual void checkLine(); // before a line gets its number and is written
    virtual double lineCost(); // of a unit, by which the amount of the line is judged
    // Around each change of a line, for what the header keeps about all of them. The header is in edit throughout. At
    // lineChanging() lines() shows the line as it is stored, of a line to come the one before it. A change may still
    // be dropped then; lineSaved(), with the line, or lineRemoved(), with the next one, tells that it has happened.
    // cancel() brings the lines back without these, and the header with them.
    enum class LineChange { Insert, Edit, Remove };
    virtual void lineChanging(LineChange) { }
    virtual void lineSaved() { }
    virtual void lineRemoved() { }
    virtual void linesTakenBack() { } // those that were written are gone again, and the header is as it was
    virtual void restoreLine(const Engine::Row &kept); // fills the new line from the copy

    // --- pieces for those ------------------------------------------------------------------------------------
    void requireHeaderField(const QString &field, const QString &column) const; // "Field '...' must have a value"
    bool hasReference(const QString &table, const QString &keyField); // the header names a row of it
    void requireLocation();
    void requireLines() const;
    const LineCheck &lineCheck() const { return m_check; }

private:
    struct HeaderRules final : Engine::RecordRules
    {
        explicit HeaderRules(DocumentEntry &owner)
            : entry(owner)
        {
        }
        void insert(const Step &begin) override;
        void edit(const Step &begin) override;
        void post(const Step &save) override;
        void cancelled() override;

        DocumentEntry &entry;
    };
    struct LineRules final : Engine::RecordRules
    {
        explicit LineRules(DocumentEntry &owner)
            : entry(owner)
        {
        }
        void insert(const Step &begin) override;
        void edit(const Step &begin) override;
        void post(const Step &save) override;
        void remove(const Step &erase) override;

        DocumentEntry &entry;
    };

    Engine::Value askedDate(const Engine::Value &typed);
    void beginVisit();
    void endVisit();

    BegunDocument::Header headerTexts() const;
    void setHeader(const BegunDocument::Header &texts);
    void signBegun();

    void newHeader();
    void assignNumbers();
    void refusePosted() const;
    void headerEdited();
    void setFiscalDefaults(const FiscalSettings &settings);
    void checkHeader();
    void checkPeriod();
    void askReferences();

    void lockLines();
    void beginLineChange(LineChange change);
    void clearLine();
    void takeBackLines(const Engine::Row &header, int nextSeq);
    void numberLine();
    int highestSeq() const;
    QString lineName() const;
    bool hasLines() const;

    const DocumentKind &m_kind;
    Prompts &m_prompts;
    HeaderRules m_headerRules{*this};
    LineRules m_lineRules{*this};
    Engine::Table m_header;
    Engine::Table m_lines;
    LineCheck m_check;
    DocumentVisit m_visit;
    LineStock m_stock;

    // The number of the next new line: looked up once, when the first change of the visit locks the document, and counted
    // from there. A line whose number proves to be taken all the same gets the highest stored one plus 1.
    int m_nextSeq = 1;
    bool m_wasSaved = false;
    struct TakenOut
    {
        Engine::Row values;
        QString name;
    };
    TakenOut currentLine() const;
    std::optional<TakenOut> m_takenOut;
    std::vector<std::pair<QString, Engine::StatementPtr>> m_references; // asked for, by table
    QString m_givenNumber; // of the new document, from a file that has one; empty: the counter gives it
    std::unique_ptr<BegunDocument> m_begun; // since the first line of a new document
    QDate m_distantDate; // that the user wants all the same
};

} // namespace Tallymere
