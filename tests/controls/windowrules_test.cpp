#include "controls/grids/stepbox.h"
#include "controls/windows/windowrules.h"
#include "tests/support/screendriver.h"

#include <QFormLayout>
#include <QMessageBox>
#include <QPlainTextEdit>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// Two pages of fields, one that cannot be turned to between them, and a button under them.
struct WindowRulesTest : testing::Test
{
    WindowRulesTest()
    {
        new WindowRules(mainWindow);
        auto *layout = new QVBoxLayout(window);
        layout->addWidget(pages);
        layout->addWidget(button);
        addPage({name, memo})->layout()->addWidget(new QLabel(u"Fields"_s));
        pages->setTabEnabled(pages->indexOf(addPage({new QLineEdit})), false);
        addPage({choice, number});
        choice->addItems({u"kilo"_s, u"gram"_s});
        showActive(*window);
    }

    QWidget *addPage(const QList<QWidget *> &fields)
    {
        auto *page = new QWidget;
        auto *layout = new QFormLayout(page);
        for (QWidget *field : fields)
            layout->addRow(field);
        pages->addTab(page, u"Page"_s);
        return page;
    }

    QWidget mainWindow;
    QDialog *window = new QDialog(&mainWindow);
    QTabWidget *pages = new QTabWidget;
    QPushButton *button = new QPushButton(u"&Apply"_s);
    QLineEdit *name = new QLineEdit;
    QPlainTextEdit *memo = new QPlainTextEdit;
    QComboBox *choice = new QComboBox;
    QSpinBox *number = new QSpinBox;
};

} // namespace

TEST_F(WindowRulesTest, altTypesNothingAndStillPressesButtons)
{
    int pressed = 0;
    QObject::connect(button, &QPushButton::clicked, button, [&] { ++pressed; });
    for (QWidget *field : QWidgetList{name, memo, choice, number}) {
        pages->setCurrentIndex(field == choice || field == number ? 2 : 0);
        field->setFocus();
        for (const Qt::KeyboardModifiers modifier :
             QList<Qt::KeyboardModifiers>{Qt::AltModifier, Qt::AltModifier | Qt::ShiftModifier, Qt::MetaModifier}) {
            for (const char key : {'k', 'g', '7'})
                QTest::keyClick(field, key, modifier);
        }
        QTest::keyClick(field, Qt::Key_A, Qt::AltModifier);
    }
    EXPECT_TRUE(comesTrue([&] { return pressed > 0; }));
    EXPECT_EQ(name->text() + memo->toPlainText() + choice->currentText() + number->text(), u"kilo0"_s);
    name->setFocus();
    QTest::keyClick(name, '@', Qt::ControlModifier | Qt::AltModifier); // as some keyboards type it
    EXPECT_EQ(name->text(), u"@"_s);
}

TEST_F(WindowRulesTest, pagesAreTurnedFromAnywhereAndTheCursorGoesIntoThem)
{
    button->setFocus();
    type("<Ctrl+Tab>");
    EXPECT_TRUE(pages->currentIndex() == 2 && choice->hasFocus());
    type("<Ctrl+Tab>");
    memo->setFocus();
    type("<Ctrl+Shift+Backtab>");
    EXPECT_TRUE(pages->currentIndex() == 2 && choice->hasFocus());
    EXPECT_EQ(memo->toPlainText(), QString());
}

TEST_F(WindowRulesTest, nothingIsClosedUnderADialog)
{
    EXPECT_TRUE(whileOpen<QMessageBox>(
        [&] { QMessageBox(QMessageBox::Question, {}, u"Well?"_s, QMessageBox::Ok, window).exec(); },
        [&](QMessageBox &box) {
            EXPECT_FALSE(window->close());
            EXPECT_TRUE(window->isVisible());
            QDialog further(&box);
            further.show();
            EXPECT_TRUE(further.close()) << "it belongs to the box";
        }));
    EXPECT_TRUE(window->close());
}
