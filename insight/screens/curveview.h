#pragma once

#include <QChartView>
#include <QDate>
#include <QString>
#include <vector>

namespace Tallymere {

// What a curve stands at from a date on.
struct CurvePoint
{
    QDate date; // valid
    double value = 0;
    QString text; // what is told of it: "14 Nov 26, Receipt: 1001: 33.5 on hand"
};

// A figure over time, which goes on from each point as it is up to the next. The mouse over it, and Left, Right, Home and
// End tell what a point is; Enter and a double click choose it.
class CurveView final : public QChartView
{
    Q_OBJECT

public:
    enum class Tone { Accent, Notice };

    CurveView(Tone tone, QWidget *parent);

    // In the order of their dates. The text is what is told of the whole to those who do not see it.
    void setPoints(std::vector<CurvePoint> points, const QString &whole);
    int currentPoint() const { return m_current; } // -1: none

Q_SIGNALS:
    void told(const QString &text); // of the point under the mouse or the cursor; empty: of none
    void chosen(int point);

protected:
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void changeEvent(QEvent *event) override;
    void drawForeground(QPainter *painter, const QRectF &rect) override;

private:
    void draw();
    void paintLook();
    int pointAt(const QPointF &place) const;
    void moveTo(int point);

    const Tone m_tone;
    std::vector<CurvePoint> m_points;
    int m_current = -1;
};

} // namespace Tallymere
