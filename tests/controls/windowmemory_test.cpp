#include "controls/windows/windowplaces.h"
#include "tests/controls/itemlist.h"
#include "tests/support/screentest.h"

#include <QFrame>
#include <QScreen>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct WindowMemoryTest : ScreenTest
{
    WindowMemoryTest()
    {
        context->settings = &settings;
        mainWindow->setGeometry(20, 20, 200, 100);
        mainWindow->show();
    }

    ItemList &open()
    {
        auto *screen = new ItemList(*context, mainWindow.get());
        screen->show();
        return *screen;
    }
    QRect changed(const QRect &place)
    {
        ItemList &screen = open();
        screen.setGeometry(place);
        screen.close();
        settle();
        ItemList &again = open();
        const QRect found = again.geometry();
        again.close();
        settle();
        return found;
    }
    static QTableView &grid(const ItemList &list) { return *child<QTableView>(list, "DBGrid1"); }
};

} // namespace

TEST_F(WindowMemoryTest, windowsComeBackWhereTheUserHasPutThem)
{
    const QRect place(60, 70, 420, 310);
    EXPECT_EQ(changed(place), place);

    auto &list = open();
    grid(list).setColumnWidth(0, 111);
    QTest::mouseDClick(child<QFrame>(list, "RzPanelTop"), Qt::LeftButton);
    const QSize first = list.size();
    EXPECT_NE(first, place.size()) << "twelve rows";
    list.close();
    settle();
    auto &again = open();
    EXPECT_EQ(again.size(), first);
    EXPECT_EQ(grid(again).columnWidth(0), 111);
    again.showMaximized();
    again.close();
    settle();
    auto &large = open();
    EXPECT_TRUE(large.isMaximized());
    large.showNormal();
    EXPECT_EQ(large.size(), first);
}

TEST_F(WindowMemoryTest, whatNobodyHasChangedIsNotWritten)
{
    for (int i = 0; i < 2; ++i) {
        auto &list = open();
        list.setGeometry(list.geometry().translated(1, -1)); // rounded by a scaled screen
        list.close();
        settle();
    }
    EXPECT_EQ(settings.read(u"Forms/frmItemList"_s, u"Place"_s), QString());
    EXPECT_EQ(settings.read(u"Forms/frmItemList"_s, u"DBGrid1"_s), QString());
}

TEST_F(WindowMemoryTest, settingsThatCannotBeUsedDoNoHarm)
{
    const QString section = u"Forms/frmItemList"_s;
    const std::pair<QString, QString> cases[] = {
        {u"here"_s, u"= ItemNo ItemNo=x ItemNo=-5 ItemNo=1e99"_s}, // damaged
        {u""_s, u"Gone=120 ItemDescription=abc"_s}, // another layout
        {u"9000 -4000 400 300"_s, {}}, // a screen that is gone
    };
    for (const auto &[place, widths] : cases) {
        settings.write(section, u"Place"_s, place);
        settings.write(section, u"DBGrid1"_s, widths);
        const auto &list = open();
        EXPECT_TRUE(mainWindow->screen()->availableGeometry().contains(list.geometry())) << place.toStdString();
        EXPECT_EQ(grid(list).columnWidth(0), 80) << widths.toStdString();
        delete &list;
    }
    settings.writable = false;
    changed(QRect(60, 70, 420, 310));
    context->settings = nullptr;
    changed(QRect(60, 70, 420, 310));
    EXPECT_EQ(prompts.said, QStringList());
}

TEST(WindowPlaces, LieOnTheScreensThatThereAre)
{
    const QList<QRect> two{{0, 0, 1000, 800}, {1000, 0, 600, 500}};
    const std::tuple<const char *, QRect, QRect> cases[] = {
        {"as it is", {10, 20, 300, 200}, {10, 20, 300, 200}},
        {"across both", {900, 100, 300, 200}, {900, 100, 300, 200}},
        {"below the smaller one", {1100, 400, 300, 200}, {1100, 300, 300, 200}},
        {"mostly on the first", {-50, 700, 300, 200}, {0, 600, 300, 200}},
        {"on none", {5000, -3000, 300, 200}, {700, 0, 300, 200}},
        {"too large", {1200, 100, 5000, 5000}, {1000, 0, 600, 500}},
    };
    for (const auto &[what, place, expected] : cases)
        EXPECT_EQ(onScreens(place, two), expected) << what;
}

TEST(WindowPlaces, StandBesideEachOtherOrHideLittle)
{
    const QRect screen(0, 0, 1000, 800);
    const QRect left(0, 0, 400, 300);
    const QRect right(410, 0, 590, 300);
    const std::tuple<const char *, QList<QRect>, QSize, QPoint> cases[] = {
        {"right of it, as it is too high", {left}, {500, 600}, QPoint(409, 0)},
        {"below, which is nearer", {left}, {500, 400}, QPoint(0, 309)},
        {"below the nearest", {left, right}, {300, 300}, QPoint(0, 309)},
        {"left of it", {{600, 100, 400, 700}}, {500, 600}, QPoint(90, 100)},
        {"in a corner, where it hides least", {{200, 100, 600, 600}}, {500, 600}, QPoint(0, 0)},
        {"wider than the screen", {left}, {1200, 100}, QPoint(0, 309)},
    };
    for (const auto &[what, taken, size, expected] : cases)
        EXPECT_EQ(besideOthers(taken, taken.first().topLeft(), size, 10, screen), expected) << what;
}
