#pragma once

#include "engine/store/database.h"
#include "engine/values/layout.h"

#include <functional>
#include <memory>
#include <optional>
#include <QHash>
#include <QList>
#include <QString>
#include <vector>

namespace Tallymere {

class HeldCounters;
class ImportAnswers;
class ImportTarget;
class RecordList;

// What an import works with from its first row to its last.
struct ImportRun
{
    Engine::Database &database;
    ImportAnswers &answers;
    HeldCounters &counters;
};

// Where a number or name is looked up that stands for a key: "TypeName" for ItemTypeID.
struct NameLookup
{
    QString table; // "ItemType"
    QString nameField; // "TypeName"
    QString keyField; // "ItemTypeID"
    QString notFound; // "Item type '%1' not found"
};

// One column that a file of a kind may have.
struct ImportColumn
{
    enum class Level { Document, Line };
    enum class Format { Plain, Year, Period }; // years of two digits or in full; periods from 1 to 12

    QString field; // the name in the header row
    Engine::FieldType type = Engine::FieldType::Text;
    int size = 0; // characters, for Text
    QString target; // the field it fills; several columns may fill the same one, a file has only one of them
    Level level = Level::Document;
    Format format = Format::Plain;
    bool required = false; // one of the columns with this target must be there
    qint64 lowest = 0, highest = 0; // of a whole number; no limits when both are 0
    std::optional<NameLookup> lookup;
};

// What tells the import of one kind of file from another, as data.
struct ImportKind
{
    QString name; // "items"
    QString oneName; // "item"
    QList<ImportColumn> columns;
    QStringList refusedColumns; // fields that exist and that only the system sets
    QStringList lockedTables; // nobody else writes to them meanwhile; in the order they are locked
    std::function<std::unique_ptr<ImportTarget>(const ImportRun &)> makeTarget;
    QHash<QString, QString> titles; // what users call the fields, where a list or its lines show them
    QString keyField; // of what is written
    QString numberField; // that users know it by, and that is given once; empty: none
    QStringList keyTables; // in which its key stands, its own first
    QString lineTable = {}; // of documents
    std::function<std::unique_ptr<RecordList>(Engine::Database &)> makeList; // that deletes what was written; open

    bool hasLines() const;
};

const QList<ImportKind> &importKinds();
const ImportKind *findImportKind(const QString &name);

// What users call a field: as a list or its lines show it, else as it is called wherever it stands; empty: they do not know it.
QString plainTitle(const ImportKind &kind, const QString &field);

// A value of a row with the column that it stands in.
struct ImportCell
{
    const ImportColumn *column = nullptr;
    Engine::Value value; // null for an empty field; the text itself in columns with a lookup
};

struct ImportRow
{
    int line = 0; // of the file
    std::vector<ImportCell> cells;
    bool isBad = false; // has been reported; what it would have brought is missing

    const ImportCell *cell(QStringView target) const; // the one that fills the field, or nullptr
};

using ImportDocument = std::vector<ImportRow>; // one row, or the rows of a document with lines

// Rows refused so far.
class ImportErrors
{
public:
    struct Error
    {
        int line;
        QString message;
    };

    void add(int line, const QString &message);
    bool isEmpty() const { return m_errors.empty(); }
    std::vector<Error> inFileOrder() const;
    const QString &sheet() const { return m_sheet; } // of the file that the rows stand in; empty where it has none
    void setSheet(const QString &sheet) { m_sheet = sheet; }

private:
    QString m_sheet;
    std::vector<Error> m_errors;
};

// Writes the documents of one kind, by the rules of its entry screen, within the caller's transaction.
class ImportTarget
{
public:
    virtual ~ImportTarget() = default;
    // What is refused is added to the errors; the database is rolled back then. Throws EngineError.
    virtual void add(ImportDocument &document, ImportErrors &errors) = 0;
    const std::vector<int> &writtenKeys() const { return m_writtenKeys; } // in their order

protected:
    void keepWritten(int key) { m_writtenKeys.push_back(key); }

private:
    std::vector<int> m_writtenKeys;
};

} // namespace Tallymere
