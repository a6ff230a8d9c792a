#include "base/formats.h"
#include "base/ruleerror.h"
#include "controls/fields/fieldbinder.h"
#include "controls/fields/memoedit.h"
#include "controls/windows/fieldmark.h"
#include "engine/records/query.h"
#include "tests/support/screendriver.h"
#include "tests/support/spokenprompts.h"
#include "tests/support/teststore.h"

#include <QPlainTextEdit>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace Tallymere;
using Engine::FieldType;

namespace {

const Engine::TableLayout meals{u"Meal"_s,
                                {{u"MealID"_s, FieldType::Integer},
                                 {u"Name"_s, FieldType::Text, 8},
                                 {u"Cost"_s, FieldType::Money},
                                 {u"Served"_s, FieldType::Date},
                                 {u"Hot"_s, FieldType::Boolean},
                                 {u"Note"_s, FieldType::Memo}},
                                {{{}, u"MealID"_s, Engine::IndexOption::Primary}}};

struct FieldBinderTest : testing::Test
{
    FieldBinderTest()
    {
        store.database().createTable(meals);
        store.execute(u"INSERT INTO Meal (MealID, Name, Cost, Served) VALUES (1, 'Soup', 2.5, '2026-03-14')"_s);
        table.emplace(store.database(), u"Meal"_s);
        table->open();
        table->field(u"Cost").format = currencyFormat({});
        table->field(u"Served").format = dateFormat({});
        table->field(u"Name").validate = [](const Engine::Value &name) {
            if (name.toText() == "Stone"_L1)
                throw RuleError(u"Nobody eats that"_s, u"Name"_s);
        };
        auto *layout = new QVBoxLayout(&form);
        for (const QString &field : {u"Name"_s, u"Cost"_s, u"Served"_s})
            layout->addWidget(bound(new QLineEdit, u"edit"_s + field, field));
        child<QLineEdit>(form, "editServed")->setProperty("editMask", u"00/00/99;_"_s);
        auto *label = new QLabel(u"Ser&ved:"_s);
        label->setBuddy(child<QLineEdit>(form, "editServed"));
        layout->addWidget(label);
        layout->addWidget(bound(new QCheckBox, u"chkHot"_s, u"Hot"_s));
        cancel = new QPushButton(u"Cancel"_s);
        cancel->setProperty("keepsEntry", true);
        layout->addWidget(cancel);
        binder.bind(*table);
        showActive(form);
        child<QLineEdit>(form, "editName")->setFocus();
    }

    template <typename Widget> static Widget *bound(Widget *widget, const QString &name, const QString &field)
    {
        widget->setObjectName(name);
        widget->setProperty("dataField", field);
        return widget;
    }

    static void paste(const QString &text)
    {
        QApplication::clipboard()->setText(text);
        press(Qt::Key_V, Qt::ControlModifier);
    }
    QString shown(const char *name) { return child<QLineEdit>(form, name)->text(); }

    TestStore store{Store::Local};
    std::optional<Engine::Table> table;
    SpokenPrompts prompts;
    QWidget form;
    QPushButton *cancel = nullptr;
    Guard guard{prompts};
    FieldBinder binder{&form, guard};
};

} // namespace

// As a question does whose answer leads the cursor elsewhere.
TEST_F(FieldBinderTest, showsDisplayTextWhereTheCursorHasGoneOnBehindABox)
{
    type("<Tab><Tab>");
    EXPECT_EQ(shown("editServed"), u"03/14/26"_s);
    QDialog box;
    showActive(box);
    child<QLineEdit>(form, "editName")->setFocus();
    box.close();
    showActive(form);
    EXPECT_EQ(shown("editServed"), u"14 Mar 26"_s);
}

// However the cursor has come, what is typed stands for the whole date that was there, one-digit parts among it.
TEST_F(FieldBinderTest, typedDateReplacesTheOneThatTheCursorCameTo)
{
    auto *served = child<QLineEdit>(form, "editServed");
    const auto click = [served](int x) {
        QTest::mouseClick(served, Qt::LeftButton, {}, {x, served->height() / 2});
    };
    const std::tuple<const char *, const char *, std::function<void()>> arrivals[] = {
        // and where from
        {"Tab", "editCost", [] { press(Qt::Key_Tab); }},
        {"Shift+Tab", "chkHot", [] { press(Qt::Key_Backtab, Qt::ShiftModifier); }},
        {"mnemonic", "editName", [] { press(Qt::Key_V, Qt::AltModifier); }},
        {"click behind", "editName", [&] { click(served->width() - 5); }},
        {"click within", "editName", [&] { click(served->fontMetrics().horizontalAdvance(u"03/1"_s)); }},
        {"second click behind", "editName", [&] { click(20), click(served->width() - 5); }},
    };
    const std::pair<const char *, QString> dates[] = {
        {"12/1/26", u"2026-12-01"_s}, {"1/2/26", u"2026-01-02"_s}, {"110327", u"2027-11-03"_s}};
    for (const auto &[way, from, come] : arrivals) {
        for (const bool empty : {false, true}) {
            for (const auto &[typed, date] : dates) {
                table->edit();
                table->set(u"Served", empty ? Engine::Value() : Engine::Value(QDate(2026, 11, 25)));
                table->post();
                child<QWidget>(form, from)->setFocus();
                come();
                ASSERT_EQ(focusName(), u"editServed"_s) << way;
                type(typed);
                press(Qt::Key_Tab);
                EXPECT_EQ(table->date(u"Served").toString(Qt::ISODate), date)
                    << way << ": " << typed << (empty ? " into an empty one" : "");
                table->cancel();
            }
        }
    }
    table->edit();
    table->set(u"Served", QDate(2026, 11, 25));
    served->setFocus();
    served->selectAll();
    type("x<Tab>");
    EXPECT_EQ(table->date(u"Served"), QDate(2026, 11, 25)) << "the mask has no place for it";
    EXPECT_EQ(prompts.said, QStringList());
}

TEST_F(FieldBinderTest, firstKeyPutsTheTableIntoEditAndLeavingHandsTheEntryOver)
{
    EXPECT_FALSE(table->isEditing());
    type("Long porridge");
    EXPECT_TRUE(table->isEditing());
    EXPECT_EQ(shown("editName"), u"Long por"_s) << "no longer than the field";
    EXPECT_EQ(table->text(u"Name"), u"Soup"_s);
    press(Qt::Key_Tab);
    EXPECT_EQ(table->text(u"Name"), u"Long por"_s);
    EXPECT_EQ(focusName(), u"editCost"_s);
    child<QCheckBox>(form, "chkHot")->setFocus();
    press(Qt::Key_Space);
    EXPECT_TRUE(table->boolean(u"Hot"));
}

TEST_F(FieldBinderTest, firstKeyChangesNothingThatSomebodyElseHasChanged)
{
    auto *name = child<QLineEdit>(form, "editName");
    name->end(false);
    store.execute(u"UPDATE Meal SET Name = 'Broth'"_s);
    QTest::keyClicks(name, u"s"_s);
    QApplication::processEvents();
    EXPECT_EQ(prompts.told(), u"error: Another user has changed this since it was shown. Here is what it is now.");
    EXPECT_EQ(name->text(), u"Broth"_s);
    QTest::keyClicks(name, u"Stew"_s);
    binder.commit();
    EXPECT_EQ(table->text(u"Name"), u"Stew"_s) << "it is the next one's to change";
}

TEST_F(FieldBinderTest, refusedEntryIsShownAndKeepsTheCursor)
{
    const std::tuple<const char *, const char *, QString> refusals[] = {
        {"editName", "Stone<Tab>", u"error: Nobody eats that"_s},
        {"editCost", "two<Tab>", u"error: "_s},
        {"editServed", "139926<Tab>", u"error: "_s}};
    for (const auto &[widget, typed, message] : refusals) {
        auto *edit = child<QLineEdit>(form, widget);
        typeIn(form, widget, typed);
        EXPECT_TRUE(comesTrue([edit] { return QApplication::focusWidget() == edit; }));
        ASSERT_EQ(prompts.said.size(), 1) << widget;
        EXPECT_TRUE(begins(prompts.told(), message));
        EXPECT_THROW(binder.commit(), RuleError);
        EXPECT_EQ(edit->selectedText(), edit->text()) << "the next key types over it";
        EXPECT_TRUE(edit->findChild<FieldMark *>()) << widget;
        EXPECT_TRUE(binder.revert(edit));
        EXPECT_EQ(edit->selectedText(), edit->text());
        EXPECT_TRUE(comesTrue([&] { return !edit->findChild<FieldMark *>(); })) << widget;
        EXPECT_FALSE(binder.hasEntry());
    }
    EXPECT_EQ(table->text(u"Name"), u"Soup"_s);
    EXPECT_EQ(table->money(u"Cost"), Engine::Money::fromDouble(2.5));
}

TEST_F(FieldBinderTest, anEmptiedNoteIsNone)
{
    QWidget page;
    auto *memo = bound(new QPlainTextEdit(&page), u"memoNotes"_s, u"Name"_s);
    FieldBinder notes(&page, guard);
    notes.bind(*table);
    memo->clear();
    notes.commit();
    EXPECT_TRUE(table->value(u"Name").isNull());
}

TEST_F(FieldBinderTest, leavingTowardsCancelHandsNothingOver)
{
    type("Stone");
    QTest::mouseClick(cancel, Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(prompts.said, QStringList());
    EXPECT_EQ(QApplication::focusWidget(), cancel);

    press(Qt::Key_Backtab, Qt::ShiftModifier); // the next stop after it catches up
    EXPECT_EQ(prompts.told(), u"error: Nobody eats that");
    EXPECT_EQ(focusName(), u"editName"_s);
    type("Stew");
    QTest::mouseClick(cancel, Qt::LeftButton);
    EXPECT_EQ(table->text(u"Name"), u"Soup"_s);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(table->text(u"Name"), u"Stew"_s);
    EXPECT_EQ(focusName(), u"chkHot"_s);
}

TEST_F(FieldBinderTest, whatIsPastedIsOneLineAndWhatIsCutOffIsSaid)
{
    const QString limit = u"warn: 'Name' takes no more than 8 characters.\n"_s;
    paste(u"Pea\r\n\tSoup\nhot"_s);
    EXPECT_EQ(shown("editName"), u"Pea Soup"_s);
    EXPECT_EQ(prompts.told(), limit + u"This has been cut off: \"hot\""_s);
    type("s");
    EXPECT_EQ(shown("editName"), u"Pea Soup"_s);
    EXPECT_EQ(prompts.told(), QString()) << "a box would take the keys that come next";
    press(Qt::Key_Home);
    paste(u"Hot "_s);
    EXPECT_EQ(shown("editName"), u"Pea Soup"_s) << "what stands there stays";
    EXPECT_EQ(prompts.told(), limit + u"This has been cut off: \"Hot\""_s);
    press(Qt::Key_Tab);
    EXPECT_EQ(table->text(u"Name"), u"Pea Soup"_s);
    paste(u"12.5\n"_s);
    press(Qt::Key_Tab);
    EXPECT_EQ(table->number(u"Cost"), 12.5);
    EXPECT_EQ(prompts.said, QStringList());
}

TEST_F(FieldBinderTest, aNoteTakesNoMoreThanItsFieldHowEverItComes)
{
    QWidget page;
    auto *memo = bound(new MemoEdit(&page), u"memoNotes"_s, u"Note"_s);
    FieldBinder notes(&page, guard);
    notes.bind(*table);
    showActive(page);
    memo->setFocus();
    const QString refusal =
        u"warn: 'Note' takes no more than 1,000,000 characters, in lines of no more than 20,000. What "
        "has been put in was left out."_s;
    const QString line = QString(99, u'x') + u'\n';
    paste(line.repeated(10'000));
    paste(u"y"_s);
    EXPECT_EQ(prompts.told(), refusal);
    EXPECT_EQ(memo->toPlainText().size(), 1'000'000);
    type("y");
    EXPECT_FALSE(guard.run([&] { notes.commit(); }));
    EXPECT_EQ(prompts.told(), u"error: Note: a text of more than 1,000,000 characters is not taken"_s);
    memo->setPlainText({});
    paste(QString(20'001, u'x'));
    EXPECT_EQ(prompts.told(), refusal);
    memo->setPlainText(u"short"_s);
    notes.commit();
    EXPECT_EQ(table->text(u"Note"), u"short"_s);
}

TEST_F(FieldBinderTest, whatCanOnlyBeReadHasNoBoxButTheCursor)
{
    auto *edit = child<QLineEdit>(form, "editName");
    const QSize size = edit->sizeHint();
    const auto isMarked = [edit] { return edit->findChild<FieldMark *>() != nullptr; };
    edit->setFocus();
    binder.setReadOnly(true);
    EXPECT_FALSE(edit->hasFrame());
    EXPECT_EQ(edit->sizeHint(), size) << "nothing moves";
    EXPECT_TRUE(isMarked());
    child<QLineEdit>(form, "editCost")->setFocus();
    EXPECT_FALSE(isMarked());
    binder.setReadOnly(false);
    edit->setFocus();
    EXPECT_TRUE(edit->hasFrame());
    EXPECT_FALSE(isMarked());
}
