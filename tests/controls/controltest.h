#pragma once

#include "controls/windows/guard.h"
#include "engine/records/query.h"
#include "engine/records/table.h"
#include "tests/support/bothstores.h"
#include "tests/support/madelayout.h"
#include "tests/support/screendriver.h"
#include "tests/support/spokenprompts.h"

// Controls over a table of their own, to be opened, and what they say.
struct ControlTest : testing::TestWithParam<Store>
{
    explicit ControlTest(const Engine::TableLayout &layout, Store kind = Store::Local)
        : store(kind)
        , table(store.database(), layout.name)
    {
        store.database().createTable(layout);
    }

    SpokenPrompts prompts;
    Tallymere::Guard guard{prompts};
    TestStore store;
    Engine::Table table;
};

inline void clickOn(const QAbstractItemView &grid, int row, int column, Qt::KeyboardModifiers modifiers = {})
{
    const QPoint place = grid.visualRect(grid.model()->index(row, column)).center();
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, modifiers, place);
}
