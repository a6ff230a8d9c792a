#include "base/formats.h"
#include "controls/fields/fieldbinder.h"
#include "controls/fields/memoedit.h"
#include "controls/windows/fieldmark.h"
#include "tests/controls/controltest.h"

#include <QPlainTextEdit>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

const Engine::TableLayout meals =
    madeLayout(u"Meal"_s, u"MealID integer, Name text 8, Cost money, Served date, Hot boolean, Note memo"_s,
               u"MealID primary"_s);

struct FieldBinderTest : ControlTest
{
    FieldBinderTest()
        : ControlTest(meals)
    {
        store.execute(u"INSERT INTO Meal (MealID, Name, Cost, Served) VALUES (1, 'Soup', 2.5, '2026-03-14')"_s);
        table.open();
        table.field(u"Cost").format = currencyFormat({});
        table.field(u"Served").format = dateFormat({});
        table.field(u"Name").validate = [](const Engine::Value &name) {
            if (name.toText() == "Stone"_L1)
                throw RuleError(u"Nobody eats that"_s, u"Name"_s);
        };
        auto *layout = new QVBoxLayout(&form);
        for (const QString &field : {u"Name"_s, u"Cost"_s, u"Served"_s})
            layout->addWidget(bound(new QLineEdit, u"edit"_s + field, field));
        editServed = child<QLineEdit>(form, "editServed");
        editServed->setProperty("editMask", u"00/00/99;_"_s);
        auto *label = new QLabel(u"Ser&ved:"_s);
        label->setBuddy(editServed);
        layout->addWidget(label);
        layout->addWidget(bound(new QCheckBox, u"chkHot"_s, u"Hot"_s));
        cancel = new QPushButton(u"Cancel"_s);
        cancel->setProperty("keepsEntry", true);
        layout->addWidget(cancel);
        binder.bind(table);
        showActive(form);
        editName = child<QLineEdit>(form, "editName");
        editName->setFocus();
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

    // A further widget, in a window of its own, on a field.
    template <typename Widget> Widget *boundAlone(const QString &field)
    {
        auto *widget = bound(new Widget(&page), u"memoNotes"_s, field);
        notes.bind(table);
        showActive(page);
        widget->setFocus();
        return widget;
    }

    QWidget form, page;
    QLineEdit *editName = nullptr, *editServed = nullptr;
    QPushButton *cancel = nullptr;
    FieldBinder notes{&page, guard};
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
    editName->setFocus();
    box.close();
    showActive(form);
    EXPECT_EQ(shown("editServed"), u"14 Mar 26"_s);
}

// However the cursor has come, what is typed stands for the whole date that was there, one-digit parts among it.
TEST_F(FieldBinderTest, typedDateReplacesTheOneThatTheCursorCameTo)
{
    const auto click = [this](int x) {
        QTest::mouseClick(editServed, Qt::LeftButton, {}, {x, editServed->height() / 2});
    };
    const std::tuple<const char *, const char *, std::function<void()>> arrivals[] = {
        // and where from
        {"Tab", "editCost", [] { press(Qt::Key_Tab); }},
        {"Shift+Tab", "chkHot", [] { press(Qt::Key_Backtab, Qt::ShiftModifier); }},
        {"mnemonic", "editName", [] { press(Qt::Key_V, Qt::AltModifier); }},
        {"click behind", "editName", [&] { click(editServed->width() - 5); }},
        {"click within", "editName", [&] { click(editServed->fontMetrics().horizontalAdvance(u"03/1"_s)); }},
        {"second click behind", "editName", [&] { click(20), click(editServed->width() - 5); }},
    };
    const std::pair<const char *, QString> dates[] = {
        {"12/1/26", u"2026-12-01"_s}, {"1/2/26", u"2026-01-02"_s}, {"110327", u"2027-11-03"_s}};
    for (const auto &[way, from, come] : arrivals) {
        for (const bool empty : {false, true}) {
            for (const auto &[typed, date] : dates) {
                table.edit();
                table.set(u"Served", empty ? Engine::Value() : Engine::Value(QDate(2026, 11, 25)));
                table.post();
                child<QWidget>(form, from)->setFocus();
                come();
                ASSERT_EQ(focusName(), u"editServed"_s) << way;
                type(typed);
                press(Qt::Key_Tab);
                EXPECT_EQ(table.date(u"Served").toString(Qt::ISODate), date)
                    << way << ": " << typed << (empty ? " into an empty one" : "");
                table.cancel();
            }
        }
    }
    table.edit();
    table.set(u"Served", QDate(2026, 11, 25));
    editServed->setFocus();
    editServed->selectAll();
    type("x<Tab>");
    EXPECT_EQ(table.date(u"Served"), QDate(2026, 11, 25)) << "the mask has no place for it";
    EXPECT_EQ(prompts.said, QStringList());
}

TEST_F(FieldBinderTest, firstKeyChangesNothingThatSomebodyElseHasChanged)
{
    editName->end(false);
    store.execute(u"UPDATE Meal SET Name = 'Broth'"_s);
    QTest::keyClicks(editName, u"s"_s);
    QApplication::processEvents();
    EXPECT_EQ(prompts.told(), u"error: Another user has changed this since it was shown. Here is what it is now.");
    EXPECT_EQ(editName->text(), u"Broth"_s);
    QTest::keyClicks(editName, u"Stew"_s);
    binder.commit();
    EXPECT_EQ(table.text(u"Name"), u"Stew"_s) << "it is the next one's to change";
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
    EXPECT_EQ(table.text(u"Name"), u"Soup"_s);
    EXPECT_EQ(table.money(u"Cost"), Engine::Money::fromDouble(2.5));
}

TEST_F(FieldBinderTest, whatIsTypedElsewhereBeforeARefusalIsToldIsJudgedLater)
{
    typeIn(form, "editName", "Stone");
    auto *cost = child<QLineEdit>(form, "editCost");
    cost->setFocus();
    QTest::keyClicks(cost, u"two"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(prompts.told(), u"error: Nobody eats that"_s);
    EXPECT_EQ(focusName() + cost->text(), u"editNametwo"_s);
    type("Stew");
    EXPECT_THROW(binder.commit(), RuleError);
}

TEST_F(FieldBinderTest, anEmptiedNoteIsNone)
{
    boundAlone<QPlainTextEdit>(u"Name"_s)->clear();
    notes.commit();
    EXPECT_TRUE(table.value(u"Name").isNull());
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
    EXPECT_EQ(table.text(u"Name"), u"Soup"_s);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(table.text(u"Name"), u"Stew"_s);
    EXPECT_EQ(focusName(), u"chkHot"_s);
}

TEST_F(FieldBinderTest, whatIsPastedIsOneLineAndWhatIsCutOffIsSaid)
{
    editName->setAccessibleName(u"Name:"_s); // as after its label
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
    EXPECT_EQ(table.text(u"Name"), u"Pea Soup"_s);
    paste(u"12.5\n"_s);
    press(Qt::Key_Tab);
    EXPECT_EQ(table.number(u"Cost"), 12.5);
    EXPECT_EQ(prompts.said, QStringList());
}

TEST_F(FieldBinderTest, aNoteTakesNoMoreThanItsFieldHowEverItComes)
{
    auto *memo = boundAlone<MemoEdit>(u"Note"_s);
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
    EXPECT_EQ(table.text(u"Note"), u"short"_s);
}
