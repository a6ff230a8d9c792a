#pragma once

#include "engine/records/rowsource.h"
#include "engine/records/table.h"
#include "engine/store/recordlock.h"

#include <optional>
#include <QPointer>

namespace Engine {

// The columns of an index, called "t", as conditions compare them.
QList<SqlColumn> indexColumns(const TableLayout &layout, const IndexDef &index, const Dialect &dialect);

struct TableReader::Restriction
{
    struct Link
    {
        QString detail;
        QString master;
    };

    bool ranged = false;
    QList<Value> from;
    QList<Value> to;

    QPointer<DataSet> master;
    bool isMasterNew = false;
    QList<Link> links;
    QList<Value> linkValues; // those that the list was read for
    bool linksDue = false; // they are taken from the master when something is read: its record may cost a reading
    QList<QMetaObject::Connection> connections;
};

struct Table::Edit
{
    explicit Edit(bool ofNewRecord)
        : isNew(ofNewRecord)
    {
    }

    const bool isNew;
    bool isModified = false;
    Row values;
    Row original; // as read; of a new record the values it began with
    Key key; // of the stored row; empty for a new record
    std::optional<Row> written; // what saving has tried to write; stored although that failed, if only the answer
        // of the store was lost
    bool isStored = false; // that was so
    std::unique_ptr<RecordLock> lock;

    struct Number
    {
        int field;
        Value value;
    };
    // Which the store has counted for the record. It goes into the values when it is stored for good: what is undone
    // and done again gets another.
    std::optional<Number> number;
};

} // namespace Engine
