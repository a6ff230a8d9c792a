#include "controls/fields/lookupcombobox.h"
#include "engine/records/table.h"
#include "tests/support/screendriver.h"
#include "tests/support/spokenprompts.h"
#include "tests/support/teststore.h"

#include <QAccessible>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace Tallymere;
using Engine::FieldType;

namespace {

const Engine::TableLayout places{u"Place"_s,
                                 {{u"PlaceID"_s, FieldType::Integer}, {u"Name"_s, FieldType::Text, 20}},
                                 {{{}, u"PlaceID"_s, Engine::IndexOption::Primary},
                                  {u"NAME1"_s, u"Name"_s, Engine::IndexOption::CaseInsensitive}}};

struct LookupComboBoxTest : testing::Test
{
    LookupComboBoxTest()
    {
        store.database().createTable(places);
        store.execute(u"INSERT INTO Place (PlaceID, Name) VALUES (1, 'Freezer'), (2, 'attic'), (3, 'Fridge'), "
                      "(4, 'Cellar')"_s);
        list.emplace(store.database(), u"Place"_s);
        list->setIndex(u"NAME1"_s);
        auto *layout = new QVBoxLayout(&form);
        box = new LookupComboBox;
        other = new QLineEdit;
        layout->addWidget(box);
        layout->addWidget(other);
        box->setList(*list, {{u"Name"_s, u"Name"_s, 150}}, guard);
        showActive(form);
        box->setFocus();
    }

    SpokenPrompts prompts;
    Guard guard{prompts};
    TestStore store{Store::Local};
    std::optional<Engine::Table> list;
    QWidget form;
    LookupComboBox *box = nullptr;
    QLineEdit *other = nullptr;
};

} // namespace

TEST_F(LookupComboBoxTest, typedLettersMoveAndLeavingChooses)
{
    QSignalSpy chosen(box, &LookupComboBox::chosen);
    type("fr");
    EXPECT_EQ(box->currentText(), u"Freezer"_s);
    type("i");
    EXPECT_EQ(box->currentText(), u"Fridge"_s);
    type("x");
    EXPECT_EQ(box->currentText(), u"Fridge"_s) << "no such row: stays";
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
    press(Qt::Key_Down);
    EXPECT_EQ(box->currentText(), u"Fridge"_s);
    press(Qt::Key_Escape);
    EXPECT_EQ(box->currentText(), u"Freezer"_s);
    EXPECT_EQ(chosen.size(), 0);
    press(Qt::Key_Delete);
    EXPECT_EQ(box->chosenId(), 0);
    EXPECT_EQ(box->currentText(), QString());
    ASSERT_EQ(chosen.size(), 1);
    type("c");
    EXPECT_EQ(box->currentText(), u"Cellar"_s);
    press(Qt::Key_Delete);
    EXPECT_EQ(box->currentText(), QString()) << "not chosen yet";
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
    list->moveToKey({2});
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
    type("cab");
    EXPECT_EQ(box->currentText(), u"Cabin"_s);
    add(u"Alcove"_s);
    list->refresh();
    EXPECT_EQ(box->currentText(), u"Cabin"_s);
    other->setFocus();
    EXPECT_EQ(box->chosenId(), 11);
    add(u"Attic"_s);
    box->setChosenId(13);
    EXPECT_EQ(box->currentText(), u"Attic"_s);
    store.execute(u"UPDATE Place SET Name = 'Loft' WHERE PlaceID = 13"_s);
    box->setFocus();
    EXPECT_EQ(box->currentText(), u"Loft"_s);
    EXPECT_EQ(list->integer(u"PlaceID"), 2);
}
