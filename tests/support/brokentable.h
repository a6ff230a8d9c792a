#pragma once

#include "tests/support/teststore.h"

// While it lives, the store raises an error before the write ("INSERT", "UPDATE") to a table for which a condition
// over NEW holds.
class BrokenTable
{
public:
    BrokenTable(TestStore &store, const QString &event, const QString &table, const QString &condition)
        : m_store(store)
    {
        using namespace Qt::StringLiterals;
        if (store.store() == Store::Local) {
            store.execute(
                u"CREATE TRIGGER broken BEFORE %1 ON %2 WHEN %3 BEGIN SELECT RAISE(ABORT, 'no luck'); END"_s.arg(
                    event, table, condition));
            m_mend = u"DROP TRIGGER broken"_s;
            return;
        }
        store.execute(u"CREATE FUNCTION fail() RETURNS trigger LANGUAGE plpgsql AS "
                      "$$ BEGIN RAISE EXCEPTION 'no luck'; END $$; "
                      "CREATE TRIGGER broken BEFORE %1 ON %2 FOR EACH ROW WHEN (%3) "
                      "EXECUTE FUNCTION fail()"_s.arg(event, table, condition));
        m_mend = u"DROP TRIGGER broken ON %1; DROP FUNCTION fail"_s.arg(table);
    }
    ~BrokenTable() { m_store.execute(m_mend); }
    Q_DISABLE_COPY(BrokenTable)

private:
    TestStore &m_store;
    QString m_mend;
};
