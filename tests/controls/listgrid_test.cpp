#include "controls/datagrid.h"
#include "engine/table.h"
#include "tests/support/screendriver.h"
#include "tests/support/spokenprompts.h"
#include "tests/support/teststore.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace Tallymere;
using Engine::FieldType;

namespace {

constexpr int dishes = 200;

const Engine::TableLayout layout{u"Dish"_s,
                                 {{u"DishID"_s, FieldType::Integer}, {u"Name"_s, FieldType::Text, 20}},
                                 {{{}, u"DishID"_s, Engine::IndexOption::Primary}}};

class ListGridTest : public testing::Test
{
protected:
    ListGridTest()
    {
        store.database().createTable(layout);
        QStringList rows;
        for (int id = 1; id <= dishes; ++id)
            rows << u"(%1, 'Dish %1')"_s.arg(id);
        store.execute(u"INSERT INTO Dish (DishID, Name) VALUES "_s + rows.join(u", "_s));
        table.emplace(store.database(), u"Dish"_s);
        table->addCalculated(u"Twice"_s, FieldType::Integer, 0, [](const Engine::DataSet &dish) {
            return Engine::Value(2 * dish.integer(u"DishID"));
        });
        table->open();
        grid.setDataSet(*table, {{u"Name"_s, u"Name"_s}, {u"Twice"_s, u"Twice"_s}}, guard);
    }

    int rows() const { return grid.model()->rowCount(); }
    QString cell(int row, int column) const { return grid.model()->index(row, column).data().toString(); }

    SpokenPrompts prompts;
    Guard guard{prompts};
    TestStore store{Store::Local};
    std::optional<Engine::Table> table;
    ListGrid grid;
};

} // namespace

TEST_F(ListGridTest, firstPageIsThereBeforeTheListIsRead)
{
    EXPECT_TRUE(grid.tableModel()->isPartial());
    EXPECT_GT(rows(), 30);
    EXPECT_LT(rows(), dishes);
    EXPECT_EQ(cell(30, 0), u"Dish 31"_s);
    EXPECT_EQ(cell(30, 1), u"62"_s) << "what is calculated too";
    EXPECT_EQ(grid.currentIndex().row(), 0);
    showActive(grid);
    EXPECT_TRUE(QTest::qWaitFor([this] { return rows() == dishes; }));
    EXPECT_EQ(cell(dishes - 1, 1), u"400"_s);
    EXPECT_EQ(grid.currentIndex().row(), 0);
}

TEST_F(ListGridTest, cursorGoesBeyondTheFirstPage)
{
    ASSERT_TRUE(table->moveToKey({150}));
    EXPECT_EQ(grid.currentIndex().row(), 149);
    EXPECT_EQ(rows(), dishes);
    EXPECT_EQ(cell(149, 0), u"Dish 150"_s);
}

TEST_F(ListGridTest, keysReachTheLastRowAtOnce)
{
    QTest::keyClick(&grid, Qt::Key_End);
    EXPECT_EQ(grid.currentIndex().row(), dishes - 1);
    EXPECT_EQ(table->integer(u"DishID"), dishes);
}
