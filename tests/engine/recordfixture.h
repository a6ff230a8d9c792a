#pragma once

#include "engine/records/query.h"
#include "engine/records/table.h"
#include "engine/store/dialect.h"
#include "tests/support/bothstores.h"

// A small store of vendors and documents with lines, fresh for each test, in both stores.
struct RecordTest : testing::TestWithParam<Store>
{
    RecordTest()
    {
        store.session().lockAttempts = 2;
        store.session().lockPause = std::chrono::milliseconds(1);
        for (const Engine::TableLayout &layout : {vendor(), document(), line()})
            database().createTable(layout);
    }

    Engine::Database &database() { return store.database(); }

    static Engine::TableLayout vendor();
    static Engine::TableLayout document(); // numbered by the store
    static Engine::TableLayout line();
    Engine::Table &opened(const QString &index = {}) // the vendors
    {
        addVendors();
        vendors.setIndex(index);
        vendors.open();
        return vendors;
    }

    // Vendors 1 Corner, 2 apple, 3 Bell, 4 (no name), 5 Äpfel; the even ones suspended, 3 neither.
    void addVendors();
    // Documents 1 to 3, of 1, 2 and 3 lines; seq from 1, quantity = document * 10 + seq.
    void addDocuments();
    QString names(Engine::DataSet &set, const QString &field); // of all rows, joined by blanks
    // Where a set stands: "6 at 2 of 9", the key of its record, the place of it, and how many there are.
    static QString placeIn(const Engine::DataSet &set)
    {
        const int index = set.recordIndex(); // asked first: a record that was saved may leave the set by that
        return QStringLiteral("%1 at %2 of %3").arg(set.value(0).toInt()).arg(index).arg(set.recordCount());
    }
    // A new record with these values, to be saved.
    static void begin(Engine::Table &table, const QList<std::pair<QString, Engine::Value>> &values)
    {
        table.insert();
        for (const auto &[field, value] : values)
            table.set(field, value);
    }
    static void change(Engine::Table &table, QStringView field, const Engine::Value &value)
    {
        table.edit();
        table.set(field, value);
        table.post();
    }

    TestStore store{GetParam()};
    // To be opened.
    Engine::Table vendors{store.database(), QStringLiteral("Vendor")};
    Engine::Table documents{store.database(), QStringLiteral("Document")};
    Engine::Table lines{store.database(), QStringLiteral("Line")};
};
