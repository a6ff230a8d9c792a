#pragma once

#include "data/datamodule.h"
#include "tests/support/teststore.h"

// What leads a data module to a test's database.
inline Tallymere::DataModuleOptions placeOf(const TestStore &store, Tallymere::DataModuleOptions options = {})
{
    const bool local = store.store() == Store::Local;
    options.dataFolder = local ? store.directory() : QString();
    options.server = local ? QString() : QStringLiteral("127.0.0.1");
    options.serverDatabase = store.remoteName();
    return options;
}
