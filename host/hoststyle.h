#pragma once

#include <QProxyStyle>
#include <QStyleOption>

namespace Tallymere {

// Qt's Fusion, flat: buttons and fields are one ground with a thin line around, rounded, and in the accent's colour around
// what has the keyboard. A default button is filled with that.
class HostStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    HostStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override;

private:
    void drawBox(const QStyleOption &option, QPainter &painter, const QColor &ground, const QColor &line) const;
    void drawButton(const QStyleOption &option, QPainter &painter) const;
    void drawIndicator(PrimitiveElement element, const QStyleOption &option, QPainter &painter) const;
    void drawComboBox(const QStyleOptionComboBox &option, QPainter &painter, const QWidget *widget) const;
    void drawSpinBox(const QStyleOptionSpinBox &option, QPainter &painter, const QWidget *widget) const;
    void drawArrow(PrimitiveElement element, const QStyleOption &option, const QRect &room,
                   QPainter &painter) const;
};

} // namespace Tallymere
