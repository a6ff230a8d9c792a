#include "base/ruleerror.h"
#include "controls/windows/guard.h"
#include "controls/windows/messageboxes.h"
#include "engine/values/error.h"
#include "tests/support/screendriver.h"
#include "tests/support/spokenprompts.h"

#include <QMessageBox>
#include <QScreen>

using namespace Qt::StringLiterals;
using namespace Tallymere;

// What is told about a window stands over it, whichever window happens to be active.
TEST(Guard, showsItsBoxesOverItsWindow)
{
    QWidget list;
    QWidget mainWindow;
    list.show();
    showActive(mainWindow);
    MessageBoxes boxes;
    const Guard guard(boxes, {}, &list);
    const auto parentOf = [](const std::function<void()> &action) {
        QWidget *parent = nullptr;
        EXPECT_TRUE(whileOpen<QMessageBox>(action, [&](QMessageBox &box) { parent = box.parentWidget(); }));
        return parent;
    };
    EXPECT_EQ(parentOf([&] { guard.run([] { throw RuleError(u"No"_s); }); }), &list);
    EXPECT_EQ(parentOf([&] { guard.run([&] { boxes.inform(u"Well"_s); }); }), &list);
    EXPECT_EQ(parentOf([&] { boxes.inform(u"Well"_s); }), &mainWindow) << "the one in use";
    const auto goneMeanwhile = [&] { list.hide(), boxes.inform(u"Well"_s); };
    EXPECT_EQ(parentOf([&] { guard.run(goneMeanwhile); }), &mainWindow);
}

TEST(MessageBoxes, giveNothingUpAtEnter)
{
    MessageBoxes boxes;
    const auto answerToEnter = [&](Question question) {
        bool answer = false;
        EXPECT_TRUE(whileOpen<QMessageBox>([&] { answer = boxes.confirm(question, u"Well?"_s); },
                                           [](QMessageBox &) { press(Qt::Key_Return); }));
        return answer;
    };
    EXPECT_TRUE(answerToEnter(Question::YesNo));
    EXPECT_FALSE(answerToEnter(Question::Loss));
    EXPECT_FALSE(answerToEnter(Question::Confirm));
}

TEST(Guard, showsWhatStopsAHandlerAndLetsNothingPast)
{
    const std::tuple<const char *, std::function<void()>, QStringList> stops[] = {
        // and what happens, in order
        {"done", [] {}, {u"done"_s}},
        {"rule without field", [] { throw RuleError(u"No"_s); }, {u"error: No"_s}},
        {"silent", [] { throw SilentAbort(u"GLPeriod"_s); }, {u"focus GLPeriod"_s}},
        {"engine", [] { throw Engine::EngineError(Engine::ErrorCode::DiskFull, u"Full"_s); }, {u"error: Full"_s}},
        {"no exception class",
         [] { throw "Too large"; },
         {u"error: An unexpected failure has stopped this. Nothing is known about its cause."_s}},
        {"other", [] { throw std::runtime_error("Too large"); }, {u"error: Too large"_s}},
    };
    for (const auto &[name, handler, expected] : stops) {
        SpokenPrompts prompts;
        const Guard guard(prompts, [&](const QString &column) -> QWidget * {
            prompts.said << u"focus "_s + column;
            return nullptr;
        });
        if (guard.run(handler))
            prompts.said << u"done"_s;
        EXPECT_EQ(prompts.said, expected) << name;
        const std::exception_ptr failure = Guard::attempt(handler);
        EXPECT_EQ(failure && Guard::isRefusal(failure), expected == QStringList(u"error: No"_s)) << name;
    }
}

TEST(MessageBoxes, stayWithinTheScreen)
{
    QString lines;
    for (int i = 0; i < 3000; ++i)
        lines += u"Line %1\n"_s.arg(i);
    const QString texts[] = {u"Well?"_s, lines, QString(20'000, u'x'), u"Words of a text. "_s.repeated(2000)};
    MessageBoxes boxes;
    for (const QString &text : texts) {
        QSize size;
        const auto ask = [&] { boxes.yesNoCancel(text, {}); };
        EXPECT_TRUE(whileOpen<QMessageBox>(ask, [&](QMessageBox &box) {
            for (QAbstractButton *button : box.buttons()) {
                if (box.standardButton(button) == QMessageBox::NoButton)
                    button->click(); // all of the text
            }
            QCoreApplication::processEvents();
            size = box.frameGeometry().size();
            EXPECT_TRUE(box.detailedText() == (box.text() == text ? QString() : text));
        }));
        const QSize screen = QGuiApplication::primaryScreen()->availableSize();
        EXPECT_EQ(size, size.boundedTo(screen)) << size.width() << "x" << size.height();
    }
}
