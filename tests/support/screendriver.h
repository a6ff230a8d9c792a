#pragma once

#include "tests/support/texts.h"

#include <cstring>
#include <functional>
#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStatusBar>
#include <QTableView>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>

// Helpers for driving real widgets, and the widgets that screens are made of.

template <typename Widget> Widget *child(const QWidget &window, const char *name)
{
    auto *found = window.findChild<Widget *>(QString::fromLatin1(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
}

// What must come, however slow the machine is just then.
template <typename Condition> bool comesTrue(Condition condition)
{
    constexpr int patience = 120'000;
    return QTest::qWaitFor(condition, patience);
}

// Shows a window and waits until it has the focus.
inline void showActive(QWidget &window)
{
    window.show();
    window.activateWindow();
    // Of windows with the same parent, Qt calls all active when one of them is.
    EXPECT_TRUE(comesTrue([&] { return QApplication::activeWindow() == &window; }));
}

// Keys go to whatever has the focus, as from a keyboard.
inline void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QWidget *target = QApplication::focusWidget();
    ASSERT_NE(target, nullptr);
    QTest::keyClick(target, key, modifiers);
    QCoreApplication::processEvents();
}

// What a keyboard types: letters as they stand, other keys by their names: "A10<Return>3<Shift+Tab>".
inline void type(const char *text)
{
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    for (const char *c = text; *c; ++c) {
        const char *end = *c == '<' ? std::strchr(c, '>') : nullptr;
        if (!end) {
            QTest::keyClick(QApplication::focusWidget(), *c);
            continue;
        }
        const auto key = QKeySequence::fromString(QString::fromLatin1(c + 1, end - c - 1))[0];
        ASSERT_NE(key.key(), Qt::Key_unknown) << c;
        press(key.key(), key.keyboardModifiers());
        c = end;
    }
    QCoreApplication::processEvents();
}

// Any text as it stands: characters that a keyboard may not have come as from an input method.
inline void type(const QString &text)
{
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const qsizetype units = text[i].isHighSurrogate() ? 2 : 1;
        QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_unknown, text.mid(i, units),
                            Qt::NoModifier);
        i += units - 1;
    }
    QCoreApplication::processEvents();
}

// Brings the cursor to a field, on whatever page it is.
inline void focusOn(const QWidget &window, const char *field)
{
    auto *widget = child<QWidget>(window, field);
    for (QWidget *page = widget; page; page = page->parentWidget()) {
        if (auto *pages =
                page->parentWidget() ? qobject_cast<QTabWidget *>(page->parentWidget()->parentWidget()) : nullptr)
            pages->setCurrentWidget(page);
    }
    widget->setFocus();
}

// Types into a field, or whatever else takes keys.
inline void typeIn(const QWidget &window, const char *field, const char *keys)
{
    focusOn(window, field);
    type(keys);
}

// Types over what stands in a field.
inline void typeOver(const QWidget &window, const char *field, const char *text)
{
    focusOn(window, field);
    if (auto *edit = qobject_cast<QLineEdit *>(QApplication::focusWidget()))
        edit->selectAll();
    if (*text)
        type(text);
    else
        press(Qt::Key_Delete);
}

inline void click(const QWidget &window, const char *button) { child<QAbstractButton>(window, button)->click(); }

// What a grid shows, and where its cursor is: "0,1".
inline QString cellOf(const QAbstractItemView &grid, int row, int column)
{
    return grid.model()->index(row, column).data().toString();
}
inline QStringList rowOf(const QAbstractItemView &grid, int row)
{
    QStringList cells;
    for (int column = 0; column < grid.model()->columnCount(); ++column)
        cells << cellOf(grid, row, column);
    return cells;
}
inline QString cursorOf(const QAbstractItemView &grid)
{
    return QStringLiteral("%1,%2").arg(grid.currentIndex().row()).arg(grid.currentIndex().column());
}

inline QString focusName()
{
    return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
}

// Runs the action, which opens a modal dialog, and the step on that dialog once it is there and nothing works beside it. The
// dialog is closed afterwards if the step has left it open. False when no dialog came.
template <typename Dialog>
bool whileOpen(const std::function<void()> &action, const std::function<void(Dialog &)> &step)
{
    bool came = false;
    QTimer watch;
    watch.callOnTimeout([&] {
        auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
        if (!dialog || dialog->template findChild<QProgressDialog *>())
            return;
        watch.stop();
        came = true;
        EXPECT_TRUE(comesTrue([dialog] { return QApplication::activeWindow() == dialog; }));
        step(*dialog);
        if (dialog->isVisible())
            dialog->close();
    });
    watch.start(0);
    action();
    return came;
}

// What a barcode scanner sends: letters as fast as no hand, and Enter.
inline void scan(const QString &code)
{
    static quint64 milliseconds = 1000;
    milliseconds += 1000; // since the last key of before
    const auto press = [](int key, const QString &text) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
        event.setTimestamp(milliseconds += 5);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    };
    for (const QChar letter : code)
        press(Qt::Key_unknown, letter);
    press(Qt::Key_Return, QStringLiteral("\r"));
    QCoreApplication::processEvents();
}
