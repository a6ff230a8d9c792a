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

struct CurveTime
{
    QDate from;
    QDate to;
};

// A figure over time, which goes on from each point as it is up to the next. The mouse over it, and Left, Right, Home and
// End tell what a point is; Enter and a double click choose it.
class CurveView final : public QChartView
{
    Q_OBJECT

public:
    enum class Tone { Accent, Notice };

    // The hint stands where there is no point.
    CurveView(Tone tone, QString hint, QWidget *parent);

    // In the order of their dates. The text is what is told of the whole to those who do not see it. The time that is shown
    // holds all of them; what a curve has come to goes on to its end.
    void setPoints(std::vector<CurvePoint> points, CurveTime time, const QString &whole);
    // What the figures beside the curve take, in pixels, and what they are to leave free at least. Curves of one time below
    // each other leave the same, or a day is not at the same place in both.
    int roomOfFigures() const;
    void leaveForFigures(int room);

Q_SIGNALS:
    void told(const QString &text); // of the point under the mouse or the cursor; empty: of none
    void chosen(int point);

protected:
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void changeEvent(QEvent *event) override;
    void drawForeground(QPainter *painter, const QRectF &rect) override;

private:
    void draw();
    void paintLook();
    void drawHint(QPainter &painter) const;
    int pointAt(const QPointF &place) const;
    void moveTo(int point);

    const Tone m_tone;
    const QString m_hint;
    std::vector<CurvePoint> m_points;
    CurveTime m_time;
    int m_current = -1;
};

} // namespace Tallymere
