#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QString>
#include <QWidget>

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
