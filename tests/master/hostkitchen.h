#pragma once

#include "host/tables/hosttables.h"
#include "tests/support/kitchen.h"

// The kitchen with the host's places and items. Its locations are linked to no place, and its items' numbers are no
// host items' IDs.
class HostKitchen : public Kitchen
{
public:
    explicit HostKitchen(Store store)
        : Kitchen(store)
    {
        for (const Engine::TableLayout &layout : Tallymere::HostTables::layouts()) {
            if (layout.name == QLatin1StringView("Locatns") || layout.name == QLatin1StringView("Items"))
                database().createTable(layout);
        }
    }

    // Another program's idea of a table: no key, and room for long texts.
    void replaceTable(const QString &table, const QString &columns)
    {
        database().dropTable(table);
        execute(QStringLiteral("CREATE TABLE %1 (%2)").arg(table, columns));
    }
};
