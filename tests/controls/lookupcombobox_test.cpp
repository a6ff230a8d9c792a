#include "controls/fields/lookupcombobox.h"
#include "tests/controls/controltest.h"

#include <QAccessible>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

const Engine::TableLayout places =
    madeLayout(u"Place"_s, u"PlaceID integer, Name text 20"_s, u"PlaceID primary, NAME1 Name folded"_s);

struct LookupComboBoxTest : ControlTest
{
    LookupComboBoxTest()
        : ControlTest(places)
    {
        store.execute(u"INSERT INTO Place (PlaceID, Name) VALUES (1, 'Freezer'), (2, 'attic'), (3, 'Fridge'), "
                      "(4, 'Cellar')"_s);
        table.setIndex(u"NAME1"_s);
        auto *layout = new QVBoxLayout(&form);
        layout->addWidget(box);
        layout->addWidget(other);
        box->setList(table, {{u"Name"_s, u"Name"_s, 150}}, guard);
        showActive(form);
        box->setFocus();
    }
    QString shownAfter(const char *keys) const
    {
        type(keys);
        return box->currentText();
    }

    QWidget form;
    LookupComboBox *box = new LookupComboBox;
    QLineEdit *other = new QLineEdit;
};

} // namespace

TEST_F(LookupComboBoxTest, typedLettersMoveAndLeavingChooses)
{
    QSignalSpy chosen(box, &LookupComboBox::chosen);
    EXPECT_EQ(shownAfter("fr"), u"Freezer"_s);
    EXPECT_EQ(shownAfter("i"), u"Fridge"_s);
    EXPECT_EQ(shownAfter("x"), u"Fridge"_s) << "no such row: stays";
    EXPECT_EQ(chosen.size(), 0);
    other->setFocus();
    ASSERT_EQ(chosen.size(), 1);
    EXPECT_EQ(chosen.first().first().toInt(), 3);
    EXPECT_EQ(box->chosenId(), 3);
}

TEST_F(LookupComboBoxTest, escapeGoesBackAndDeleteClears)
{
    box->setChosenId(1);
    QSignalSpy chosen(box, &LookupComboBox::chosen);
    EXPECT_EQ(shownAfter("<Down>"), u"Fridge"_s);
    EXPECT_EQ(shownAfter("<Esc>"), u"Freezer"_s);
    EXPECT_EQ(chosen.size(), 0);
    EXPECT_EQ(shownAfter("<Del>"), QString());
    EXPECT_EQ(box->chosenId(), 0);
    ASSERT_EQ(chosen.size(), 1);
    EXPECT_EQ(shownAfter("c"), u"Cellar"_s);
    EXPECT_EQ(shownAfter("<Del>"), QString()) << "not chosen yet";
    other->setFocus();
    EXPECT_EQ(chosen.size(), 1);
}

TEST_F(LookupComboBoxTest, keepsItsNameForAccessibilityToolsWhateverIsChosen)
{
    box->setAccessibleName(u"Location"_s);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(box);
    for (const auto &[key, shown] : {std::pair{1, u"Freezer"_s}, {3, u"Fridge"_s}}) {
        box->setChosenId(key);
        EXPECT_EQ(accessible->text(QAccessible::Name), u"Location"_s);
        EXPECT_EQ(accessible->text(QAccessible::Value), shown);
        ASSERT_NE(accessible->textInterface(), nullptr);
        EXPECT_EQ(accessible->textInterface()->text(0, accessible->textInterface()->characterCount()), shown);
    }
}

// Whoever adds a row or reads the shared list again, the box stands on its record and finds what is there by now. It
// leaves the list's own record where it is.
TEST_F(LookupComboBoxTest, followsWhatOthersChangeAndMovesNothing)
{
    table.moveToKey({2});
    int key = 8;
    const auto add = [&](const QString &name) {
        store.execute(u"INSERT INTO Place (PlaceID, Name) VALUES (%1, '%2')"_s, ++key, name);
    };
    box->setChosenId(4);
    add(u"Barn"_s);
    box->showPopup();
    EXPECT_EQ(box->count(), 5);
    EXPECT_EQ(box->currentText(), u"Cellar"_s);
    box->hidePopup();
    showActive(form);

    add(u"Boiler room"_s);
    add(u"Cabin"_s);
    EXPECT_EQ(shownAfter("cab"), u"Cabin"_s);
    add(u"Alcove"_s);
    table.refresh();
    EXPECT_EQ(box->currentText(), u"Cabin"_s);
    other->setFocus();
    EXPECT_EQ(box->chosenId(), 11);
    add(u"Attic"_s);
    box->setChosenId(13);
    EXPECT_EQ(box->currentText(), u"Attic"_s);
    store.execute(u"UPDATE Place SET Name = 'Loft' WHERE PlaceID = 13"_s);
    box->setFocus();
    EXPECT_EQ(box->currentText(), u"Loft"_s);
    EXPECT_EQ(table.integer(u"PlaceID"), 2);
}
