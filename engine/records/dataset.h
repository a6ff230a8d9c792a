#pragma once

#include "engine/records/setkeys.h"
#include "engine/values/field.h"
#include "engine/values/fieldname.h"
#include "engine/values/value.h"

#include <deque>
#include <memory>
#include <optional>
#include <QObject>
#include <QString>
#include <QStringList>
#include <vector>

namespace Engine {

class Connection;
class Database;
struct SetScope;
struct TableLayout;

using Row = std::vector<Value>; // in the order of the fields; calculated fields hold null here

struct FoundRow
{
    QList<qint64> key;
    Row row;
};

enum class LocateOption { None = 0, CaseInsensitive = 1, PartialKey = 2 };
Q_DECLARE_FLAGS(LocateOptions, LocateOption)
Q_DECLARE_OPERATORS_FOR_FLAGS(LocateOptions)

// A field of a set's order.
struct OrderedField
{
    QString name;
    bool caseInsensitive = false; // for text: letter case does not count
    bool descending = false;

    LocateOptions options() const { return caseInsensitive ? LocateOption::CaseInsensitive : LocateOption::None; }
};

// An order that comes before a set's own.
struct Sorting
{
    QString field; // empty: there is none
    bool descending = false;

    bool operator==(const Sorting &) const = default;
};

// An ordered set of rows with a current record: the common base of Table and Query.
//
// The set is held as ordered keys; rows are fetched in windows around what is asked for. Opening costs nothing
// until a row or the count is asked for; a million rows open, scroll and find without being read. Rows are
// counted from 0. The set is a snapshot of keys: rows that others add appear at refresh(), rows that others have
// deleted read as nulls until then.
class DataSet : public QObject
{
    Q_OBJECT

public:
    ~DataSet() override;

    Database &database() const { return m_database; }

    virtual void open() = 0;
    virtual void close() = 0;
    bool isOpen() const { return m_open; }

    // --- fields -------------------------------------------------------------------------------------------------
    // Data fields are known once the set is open. Lookup and calculated fields are added before that.
    int fieldCount() const { return static_cast<int>(m_fields.size()); }
    int fieldIndex(QStringView name) const; // -1 when there is none
    const Field &field(int index) const { return m_fields[static_cast<size_t>(index)]; }
    Field &field(int index) { return m_fields[static_cast<size_t>(index)]; }
    Field &field(QStringView name); // to set label, format, validate, changed; throws NoSuchField
    const Field &field(QStringView name) const;
    void addLookup(const FieldDef &shown, Lookup lookup);
    void addCalculated(const FieldDef &shown, std::function<Value(const DataSet &)> rule,
                       const QString &sortedBy = {});

    // --- the current record -------------------------------------------------------------------------------------
    // Of an empty set every value is null.
    virtual Value value(int field) const;
    Value value(QStringView name) const { return value(requireField(name)); }
    QString text(TextName name) const { return value(name).toText(); }
    int integer(WholeNumberName name) const { return value(name).toInt(); }
    double number(NameOf<FieldType::Float> name) const { return value(name).toDouble(); }
    Money money(NameOf<FieldType::Money> name) const; // throws BadValue for an amount beyond the range of money
    bool boolean(NameOf<FieldType::Boolean> name) const { return value(name).toBool(); }
    QDate date(NameOf<FieldType::Date> name) const { return value(name).toDate(); }

    // --- moving -------------------------------------------------------------------------------------------------
    bool isEmpty() const; // as far as is known, see hasFirstRowsOnly(); reads no more than the first row
    int recordCount() const; // reads the keys
    int recordIndex() const; // of the current record; -1 when the set is empty. May have to read the keys
    bool atEnd() const; // next() went past the last record, or the set is empty, as above
    void first();
    void next();
    void moveTo(int index); // clamped to the set
    void moveToNone(); // to no record, until one is found or moved to: nothing is read of the first one

    // The row at an index without moving, for lists. Reads the window around it if it is not in hand.
    const Row &rowAt(int index) const;
    Value valueAt(int index, int field) const; // as rowAt, with calculated fields as well
    Value valueIn(const Row &row, int field) const; // of a row of the set that is in hand, calculated fields too
    // To find the row again after a refresh. Empty for an empty set.
    QList<qint64> currentKey() const;
    QList<qint64> keyAt(int index) const; // empty beyond the set
    bool moveToKey(const QList<qint64> &key); // false, and no move, when the set does not hold it
    // The first rows of the set before the keys are read, so that a list can paint at once.
    std::vector<FoundRow> firstRows(int count) const;
    void moveToRow(const FoundRow &row); // one of these, as it was read: nothing is read for it

    // --- looking up: nothing moves, nothing is signalled ----------------------------------------------------------
    // The first row in the set's order whose fields ("ItemNo" or "ItemID;WarehouseID") equal the values; PartialKey
    // lets the last text begin with its value. Reads that row alone, as it is stored by now: the list may have been
    // read before it came.
    std::optional<FoundRow> find(const QString &fields, const QList<Value> &values,
                                 LocateOptions options = LocateOption::None) const;
    // The value of a data or lookup field of that row; null when there is none.
    Value lookUp(const QString &fields, const QList<Value> &values, QStringView result,
                 LocateOptions options = LocateOption::None) const;
    bool holds(const QList<qint64> &key) const; // the set has a row of this key by now
    int indexOf(const QList<qint64> &key) const; // -1 when the list was read without it. Reads the keys

    // --- finding and restricting --------------------------------------------------------------------------------
    // Moves to the row that find() gives; when there is none the record stays. For a row that has been added since the
    // list was read, that is read again; so with moveToKey().
    bool locate(const QString &fields, const QList<Value> &values, LocateOptions options = LocateOption::None);
    // The fields that the set is ordered by, one after the other; empty for a set without an order of its own. A text
    // is found by its beginning with one key look-up when it is compared as said here.
    virtual QList<OrderedField> orderedFields() const = 0;

    // Sorts by a field, a looked-up one too; rows that agree stay in the set's own order. Text sorts as its index has it,
    // and without regard to letter case where it has none. The record stays current, but of a long set whose first rows are found
    // by an index the first becomes it. Where an index has the whole order, rows that agree are as that has them. Another own
    // order ends it.
    void setSorting(const Sorting &sorting);
    const Sorting &sorting() const { return m_sorting; }
    QList<OrderedField> shownOrder() const; // with what it is sorted by in front
    bool canSortBy(int field) const; // not by a calculated one that nothing else sorts as
    bool isOrderedByIndex() const; // what its order begins with is found by a key look-up

    // A condition over data and looked-up fields, in force while filtered is set:
    //   (WarehouseID = 2) AND (Posted <> true) OR NOT (Name LIKE 'A%') OR (Name CONTAINS 'crème')
    // with = <> < > <= >=, LIKE, CONTAINS (of whatever letter case), IS [NOT] NULL, + - * /, AND, OR, NOT, parentheses, numbers, 'texts' (two quotes
    // for one), true, false, null and dates as 'YYYY-MM-DD'. An empty Boolean fails "= false" and passes "<> true".
    // It is parsed, never pasted: a bad one throws BadExpression saying where, and the old filter stays.
    void setFilter(const QString &expression);
    const QString &filter() const { return m_filter; }
    void setFiltered(bool on);
    bool isFiltered() const { return m_filtered; }

    // Called once, when a read finds the store damaged outside a transaction: mends it, and the read is done again.
    void onDamage(std::function<void()> mend);

    // Where a long set is read when its order or filter changes, or anew: the function is given what reads it over another
    // connection to the database, to be called once on whatever thread while this one does nothing with the set but show it. What
    // it throws is thrown on, and the set stays as it was. A set is long from so many rows on.
    using ReadOver = std::function<void(Connection &)>;
    static constexpr int longSet = 100'000;
    void onLongRead(std::function<void(const ReadOver &)> aside, int longFrom = longSet);

    // For whoever shows the first rows of a long set: what reads its keys, or only their number, over another connection, on
    // whatever thread, and gives what hands them over, to be called on the set's own. They are taken unless the set has been
    // read or changed since. Null where there is little to be gained.
    using RestOver = std::function<std::function<void()>(Connection &)>;
    RestOver restToCome() const;
    bool beginsAnew() const; // a long set of which the first rows are to be shown, before its keys are read
    // No others are known yet: of one that is narrowed they may be few or none, and the current record is the first of these.
    bool hasFirstRowsOnly() const;

    // Reads the set anew and stays on the current row; when that is gone, on the one that took its place. An edit in
    // progress is ended first.
    virtual void refresh();

Q_SIGNALS:
    void opened();
    void closed();
    void listChanged(); // keys are new: count and order may differ
    void rowChanged(int index); // the values of one row of the list are new
    void currentChanged(); // another record is current, or the current one has new values as a whole
    void fieldChanged(int field); // one value of the current record is new
    void stateChanged();

protected:
    explicit DataSet(Database &database);

    // What the set consists of, given by the subclasses; the base adds the filter.
    virtual SetScope scope() const = 0;

    int requireField(QStringView name) const; // throws NoSuchField
    void requireOpen() const; // throws WrongState
    virtual bool isCaseSorted(const Field &) const { return false; } // letter case counts in the orders of the text
    bool sortsByCase(const Field &field) const; // the same, of what is looked up too
    virtual const TableLayout *storedLayout() const { return nullptr; } // of the table that the set is
    virtual void beforeMove(); // Table: posts or drops an edit in progress
    virtual void settle() { } // Table: the same for a detail whose master is about to move
    // The list is read again when it is needed. The record stays current, or the first becomes current.
    enum class Place { Keep, First };
    void invalidate(Place place);
    struct Ahead // nothing where it is read when needed
    {
        std::optional<SetKeys> keys = {};
        // With which a list begins whose keys come later.
        std::optional<std::vector<FoundRow>> page = {};
        bool beginsAnew = false; // it is long
    };
    void takeAnew(Place place, Ahead ahead);
    Ahead readAhead() const; // of the order and filter that are set
    void emitListChanged(); // with currentChanged, for a set that is new as a whole
    Value lookedUp(const Field &field, const Value &key) const;
    // find() and locate() over the given fields.
    std::optional<FoundRow> findFirst(const QStringList &fields, const QList<Value> &values,
                                      LocateOptions options) const;
    bool moveToFirstMatch(const QStringList &fields, const QList<Value> &values, LocateOptions options);
    // Brings the data fields up to the given ones. Fields that stay keep their labels, rules and references.
    void setDataFields(const std::vector<Field> &fields);

    struct Private;
    friend class DataSetReader;
    friend class SetFiltering;
    friend class SetSorting;
    std::unique_ptr<Private> d;

    Database &m_database;
    std::deque<Field> m_fields; // references stay valid when fields are added
    bool m_open = false;
    QString m_filter;
    bool m_filtered = false;
    Sorting m_sorting;

private:
    void addField(Field field);
    void moveToFound(const QList<qint64> &key, std::optional<Row> row);
    bool matches(const Row &row, const QStringList &fields, const QList<Value> &values,
                 LocateOptions options) const;
};

} // namespace Engine
