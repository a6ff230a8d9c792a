#pragma once

#include "plgint/plgint.h"

#include <cstdio>
#include <cstring>
#include <QApplication>
#include <QEventLoop>
#include <QImage>
#include <QKeySequence>
#include <QPainter>
#include <QTest>
#include <QTimer>
#include <QWidget>

// What the programs that take pictures share.

// The application around the module, as far as it needs one.
class Host final : public QWidget, public Tallymere::IHostInterface
{
public:
    int addRef() override { return 1; }
    int release() override { return 1; }
    void getCurrentUser(QString &name) override { name = QStringLiteral("maria"); }
};

// What is to come has come: pages of lists, timers that wait for a pause.
inline void settle()
{
    constexpr int pause = 300;
    QEventLoop loop;
    QTimer::singleShot(pause, &loop, &QEventLoop::quit);
    loop.exec();
}

// The window under a title of its own, as no desktop draws one here.
inline QImage framed(QWidget &window)
{
    QPixmap content = window.grab();
    content.setDevicePixelRatio(1);
    const int title = window.fontMetrics().height() + 8;
    QImage image(content.width() + 2, content.height() + title + 1, QImage::Format_RGB32);
    image.fill(QColor(0x60, 0x70, 0x80));
    QPainter painter(&image);
    painter.setFont(window.font());
    painter.setPen(Qt::white);
    painter.drawText(QRect(8, 0, image.width() - 16, title), Qt::AlignVCenter, window.windowTitle());
    painter.drawPixmap(1, title, content);
    return image;
}

// To whatever has the keyboard: letters as they stand, other keys by their names: "A10<Return>".
inline void type(const char *text)
{
    for (const char *c = text; *c; ++c) {
        QWidget *popup = QApplication::activePopupWidget();
        QWidget *target = popup ? popup : QApplication::focusWidget();
        if (popup && popup->focusWidget())
            target = popup->focusWidget();
        const char *end = *c == '<' ? std::strchr(c, '>') : nullptr;
        if (!target) {
            std::fprintf(stderr, "nothing takes %s\n", c);
            return;
        }
        if (!end) {
            QTest::keyClick(target, *c);
            continue;
        }
        const QKeyCombination key = QKeySequence::fromString(QString::fromLatin1(c + 1, end - c - 1))[0];
        QTest::keyClick(target, key.key(), key.keyboardModifiers());
        c = end;
    }
    settle();
}
