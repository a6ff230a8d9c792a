#include "controls/windows/dress.h"

#include "controls/windows/look.h"
#include "controls/windows/screenmetrics.h"

#include <QEvent>
#include <QFrame>
#include <QGroupBox>
#include <QPainter>
#include <QStatusBar>
#include <QStyle>
#include <QTabWidget>

namespace Tallymere {

namespace {

bool isPanel(const QFrame &frame)
{
    return frame.metaObject() == &QFrame::staticMetaObject && frame.frameShape() != QFrame::HLine
        && frame.frameShape() != QFrame::VLine;
}

// Draws of a group nothing but its title. Styles leave a frame around a flat one as well.
class GroupTitle final : public QObject
{
public:
    explicit GroupTitle(QGroupBox &group)
        : QObject(&group)
        , m_group(group)
    {
        group.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::Paint)
            return false;
        QPainter painter(&m_group);
        painter.setFont(headFont(m_group.font()));
        m_group.style()->drawItemText(&painter, m_group.rect(), Qt::AlignLeft | Qt::AlignTop | Qt::TextShowMnemonic,
                                      m_group.palette(), m_group.isEnabled(), m_group.title(),
                                      QPalette::WindowText);
        return true;
    }

private:
    QGroupBox &m_group;
};

} // namespace

void dress(QWidget &window)
{
    for (QFrame *frame : window.findChildren<QFrame *>()) {
        if (isPanel(*frame))
            frame->setFrameShape(QFrame::NoFrame);
    }
    for (QGroupBox *group : window.findChildren<QGroupBox *>()) {
        if (!group->isCheckable())
            new GroupTitle(*group);
    }
    for (QTabWidget *book : window.findChildren<QTabWidget *>()) {
        book->setDocumentMode(true);
        book->setTabBarAutoHide(true);
    }
    const int side = scaled(&window, Space::cell);
    for (QStatusBar *bar : window.findChildren<QStatusBar *>()) {
        bar->setFont(secondFont(window.font()));
        bar->setContentsMargins(side, 0, side, 0);
    }
}

} // namespace Tallymere
