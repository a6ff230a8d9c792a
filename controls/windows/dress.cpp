#include "controls/windows/dress.h"

#include "controls/windows/icons.h"
#include "controls/windows/listrows.h"
#include "controls/windows/look.h"
#include "controls/windows/screenmetrics.h"
#include "engine/values/userlocale.h"

#include <QCalendarWidget>
#include <QEvent>
#include <QFrame>
#include <QGroupBox>
#include <QListWidget>
#include <QPainter>
#include <QStatusBar>
#include <QStyle>
#include <QTabWidget>
#include <QTextCharFormat>
#include <QToolButton>
#include <typeinfo>

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

// Of its own it has red letters that cannot be read on every ground, and arrows of another set of signs.
void dressCalendar(QCalendarWidget &calendar)
{
    calendar.setLocale(Engine::userLocale().locale); // its names, and the day that a week begins with
    QTextCharFormat weekend;
    weekend.setForeground(Look(calendar.palette()).colour(Look::Role::SecondText));
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
        calendar.setWeekdayTextFormat(day, weekend);
    const std::pair<const char *, Glyph> ways[] = {{"qt_calendar_prevmonth", Glyph::Previous},
                                                   {"qt_calendar_nextmonth", Glyph::Next}};
    for (const auto &[name, glyph] : ways) {
        auto *button = calendar.findChild<QToolButton *>(QLatin1StringView(name));
        if (!button)
            continue;
        QPixmap sign(button->iconSize() * calendar.devicePixelRatioF());
        sign.setDevicePixelRatio(calendar.devicePixelRatioF());
        sign.fill(Qt::transparent);
        QPainter painter(&sign);
        paintGlyph(painter, QRectF(QPointF(), sign.deviceIndependentSize()), glyph,
                   calendar.palette().color(QPalette::HighlightedText));
        button->setIcon(sign);
    }
}

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
    for (QListWidget *list : window.findChildren<QListWidget *>()) {
        const QAbstractItemDelegate &rows = *list->itemDelegate();
        if (typeid(rows) == typeid(QStyledItemDelegate)) // none of the window's own
            list->setItemDelegate(new ListRows(*list));
    }
    for (QCalendarWidget *calendar : window.findChildren<QCalendarWidget *>())
        dressCalendar(*calendar);
    const int side = scaled(&window, Space::cell);
    for (QStatusBar *bar : window.findChildren<QStatusBar *>()) {
        bar->setFont(secondFont(window.font()));
        bar->setContentsMargins(side, 0, side, 0);
    }
}

} // namespace Tallymere
