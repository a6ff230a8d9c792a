#include "controls/screens/sheetwindow.h"

#include "controls/grids/windowmemory.h"
#include "controls/windows/screenmetrics.h"
#include "controls/windows/typing.h"
#include "controls/windows/windowplaces.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>

namespace Tallymere {

SheetWindow::SheetWindow(ScreenContext &context, const QString &name, QWidget *parent)
    : QWidget(parent, Qt::Window)
    , m_context(context)
    , m_guard(context.prompts, {}, this)
    , m_opener(QApplication::activeWindow())
{
    setObjectName(name);
    setAttribute(Qt::WA_DeleteOnClose);
    m_memory = new WindowMemory(*this, context.settings);
}

void SheetWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (event->spontaneous() || testAttribute(Qt::WA_Resized))
        return;
    resize(scaled(this, m_firstSize.width()), scaled(this, m_firstSize.height()));
    fitToScreen(this);
    placeByOpener(*this);
    m_memory->restore();
}

void SheetWindow::keyPressEvent(QKeyEvent *event)
{
    if (pressButton(*this, *event))
        return;
    if (event->key() == Qt::Key_Escape)
        close();
    else if (event->key() == Qt::Key_F5)
        m_guard.run([this] { readAnew(); });
    else
        QWidget::keyPressEvent(event);
}

void SheetWindow::closeEvent(QCloseEvent *event)
{
    QWidget::closeEvent(event);
    if (m_opener && m_opener->isVisible())
        m_opener->activateWindow();
}

} // namespace Tallymere
