#pragma once

#include "plgint/plgint.h"

#include <QEventLoop>
#include <QImage>
#include <QPainter>
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
    const QPixmap content = window.grab();
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
