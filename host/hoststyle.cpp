#include "host/hoststyle.h"

#include <algorithm>
#include <QPainter>
#include <QStyleOption>
#include <QWidget>

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

bool isFilled(const QStyleOption &option)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(&option);
    return button && button->features.testFlag(QStyleOptionButton::DefaultButton)
        && option.state.testFlag(QStyle::State_Enabled);
}

// A link of a page is flat, and would not show that it has the keyboard.
bool isFocusedLink(const QStyleOption &option)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(&option);
    return button && button->features.testFlag(QStyleOptionButton::CommandLinkButton)
        && option.state.testFlag(QStyle::State_HasFocus);
}

} // namespace

HostStyle::HostStyle()
    : QProxyStyle(u"Fusion"_s)
{
}

int HostStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                         QStyleHintReturn *returned) const
{
    if (hint == SH_EtchDisabledText || hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

// A text does not touch the border of its button.
QSize HostStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                                  const QWidget *widget) const
{
    constexpr double room = 8; // pixels at 96 dpi, beside what the style leaves
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type == CT_PushButton && widget)
        size.rwidth() += qRound(room * widget->logicalDpiX() / pixelsPerInch);
    return size;
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
    const bool focused = option.state.testFlag(State_HasFocus);
    const bool filled = isFilled(option);
    QColor ground = filled ? accentOf(option) : option.palette.color(QPalette::Button);
    if (down || over)
        ground = between(ground, filled ? option.palette.color(QPalette::WindowText) : accentOf(option),
                         down ? 0.25 : 0.1);
    drawBox(option, painter, ground, filled || focused ? accentOf(option) : lineOf(option));
}

// A box with a tick, or a ring with a dot. Half checked is a bar.
void HostStyle::drawIndicator(PrimitiveElement element, const QStyleOption &option, QPainter &painter) const
{
    const bool enabled = option.state.testFlag(State_Enabled);
    const bool on = option.state.testFlag(State_On);
    const bool marked = on || (enabled && option.state.testFlag(State_MouseOver));
    const QColor mark = enabled ? accentOf(option) : option.palette.color(QPalette::Disabled, QPalette::Text);
    const double size = std::min(option.rect.width(), option.rect.height()) - 1;
    const QRectF box(option.rect.x() + 0.5, option.rect.y() + 0.5, size, size);
    const auto at = [&box](double x, double y) { return box.topLeft() + QPointF(x, y) * box.width(); };
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(marked ? mark : between(lineOf(option), option.palette.color(QPalette::WindowText), 0.3));
    painter.setBrush(option.palette.color(enabled ? QPalette::Base : QPalette::Window));
    if (element == PE_IndicatorRadioButton) {
        painter.drawEllipse(box);
        painter.setPen(Qt::NoPen);
        painter.setBrush(mark);
        if (on)
            painter.drawEllipse(box.center(), size / 4, size / 4);
    } else {
        painter.drawRoundedRect(box, size / 5, size / 5);
        painter.setPen(QPen(mark, size / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const QPointF tick[] = {at(0.22, 0.52), at(0.42, 0.72), at(0.8, 0.28)};
        if (on)
            painter.drawPolyline(tick, 3);
        else if (option.state.testFlag(State_NoChange))
            painter.drawLine(at(0.25, 0.5), at(0.75, 0.5));
    }
    painter.restore();
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
    case PE_IndicatorCheckBox:
    case PE_IndicatorRadioButton:
        return drawIndicator(element, *option, *painter);
    default:
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void HostStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                            const QWidget *widget) const
{
    if (element == CE_PushButtonBevel && isFocusedLink(*option))
        return drawButton(*option, *painter);
    if (element != CE_PushButtonLabel || !isFilled(*option))
        return QProxyStyle::drawControl(element, option, painter, widget);
    QStyleOptionButton label = *qstyleoption_cast<const QStyleOptionButton *>(option);
    label.palette.setColor(QPalette::ButtonText, label.palette.color(QPalette::HighlightedText));
    QProxyStyle::drawControl(element, &label, painter, widget);
}

void HostStyle::drawComboBox(const QStyleOptionComboBox &option, QPainter &painter, const QWidget *widget) const
{
    const bool marked = option.state.testFlag(State_HasFocus) && option.state.testFlag(State_Enabled);
    drawBox(option, painter, option.palette.color(QPalette::Base), marked ? accentOf(option) : lineOf(option));
    drawArrow(PE_IndicatorArrowDown, option, subControlRect(CC_ComboBox, &option, SC_ComboBoxArrow, widget),
              painter);
}

void HostStyle::drawSpinBox(const QStyleOptionSpinBox &option, QPainter &painter, const QWidget *widget) const
{
    const bool typed = option.state.testFlag(State_HasFocus) && option.state.testFlag(State_Enabled);
    drawBox(option, painter, option.palette.color(QPalette::Base), typed ? accentOf(option) : lineOf(option));
    const std::pair<SubControl, PrimitiveElement> arrows[] = {{SC_SpinBoxUp, PE_IndicatorArrowUp},
                                                              {SC_SpinBoxDown, PE_IndicatorArrowDown}};
    for (const auto &[button, arrow] : arrows)
        drawArrow(arrow, option, subControlRect(CC_SpinBox, &option, button, widget), painter);
}

// Half as wide as its room, in the middle of it.
void HostStyle::drawArrow(PrimitiveElement element, const QStyleOption &option, const QRect &room,
                          QPainter &painter) const
{
    QStyleOption arrow(option);
    const int size = room.width() / 2;
    arrow.rect = QRect(room.center() - QPoint(size / 2, size / 2), QSize(size, size));
    QProxyStyle::drawPrimitive(element, &arrow, &painter);
}

void HostStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                   const QWidget *widget) const
{
    const auto *box = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    if (control == CC_ComboBox && box && !box->editable)
        return drawComboBox(*box, *painter, widget);
    if (const auto *spin = qstyleoption_cast<const QStyleOptionSpinBox *>(option); control == CC_SpinBox && spin)
        return drawSpinBox(*spin, *painter, widget);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

} // namespace Tallymere
