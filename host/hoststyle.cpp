#include "host/hoststyle.h"

#include <QPainter>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr double corner = 4; // pixels at 96 dpi
constexpr double pixelsPerInch = 96;

QColor between(const QColor &one, const QColor &other, double share)
{
    const auto mix = [share](int a, int b) { return qRound(a + (b - a) * share); };
    return {mix(one.red(), other.red()), mix(one.green(), other.green()), mix(one.blue(), other.blue())};
}

QColor lineOf(const QStyleOption &option)
{
    constexpr double share = 0.25;
    return between(option.palette.color(QPalette::Window), option.palette.color(QPalette::WindowText), share);
}

QColor accentOf(const QStyleOption &option) { return option.palette.color(QPalette::Highlight); }

bool isDefault(const QStyleOption &option)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(&option);
    return button && button->features.testFlag(QStyleOptionButton::DefaultButton);
}

} // namespace

HostStyle::HostStyle()
    : QProxyStyle(u"Fusion"_s)
{
}

int HostStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                         QStyleHintReturn *returned) const
{
    if (hint == SH_EtchDisabledText)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

void HostStyle::drawBox(const QStyleOption &option, QPainter &painter, const QColor &ground,
                        const QColor &line) const
{
    const double radius = corner * painter.device()->logicalDpiX() / pixelsPerInch;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(line);
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter.restore();
}

void HostStyle::drawButton(const QStyleOption &option, QPainter &painter) const
{
    const bool enabled = option.state.testFlag(State_Enabled);
    const bool down = option.state.testFlag(State_Sunken) || option.state.testFlag(State_On);
    const bool over = enabled && option.state.testFlag(State_MouseOver);
    const bool marked = option.state.testFlag(State_HasFocus) || (enabled && isDefault(option));
    QColor ground = option.palette.color(QPalette::Button);
    if (down || over)
        ground = between(ground, accentOf(option), down ? 0.25 : 0.08);
    drawBox(option, painter, ground, marked ? accentOf(option) : lineOf(option));
}

void HostStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                              const QWidget *widget) const
{
    switch (element) {
    case PE_PanelButtonCommand:
        return drawButton(*option, *painter);
    case PE_FrameLineEdit: {
        const bool typed = option->state.testFlag(State_HasFocus) && option->state.testFlag(State_Enabled);
        return drawBox(*option, *painter, option->palette.color(QPalette::Base),
                       typed ? accentOf(*option) : lineOf(*option));
    }
    default:
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void HostStyle::drawComboBox(const QStyleOptionComboBox &option, QPainter &painter, const QWidget *widget) const
{
    const bool marked = option.state.testFlag(State_HasFocus) && option.state.testFlag(State_Enabled);
    drawBox(option, painter, option.palette.color(QPalette::Base), marked ? accentOf(option) : lineOf(option));
    QStyleOption arrow(option);
    arrow.rect = subControlRect(CC_ComboBox, &option, SC_ComboBoxArrow, widget);
    const int size = arrow.rect.width() / 2;
    arrow.rect = QRect(arrow.rect.center() - QPoint(size / 2, size / 2), QSize(size, size));
    QProxyStyle::drawPrimitive(PE_IndicatorArrowDown, &arrow, &painter, widget);
}

void HostStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                   const QWidget *widget) const
{
    const auto *box = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    if (control == CC_ComboBox && box && !box->editable)
        return drawComboBox(*box, *painter, widget);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

} // namespace Tallymere
