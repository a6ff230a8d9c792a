#pragma once

#include <QAbstractButton>

namespace Tallymere {

// A line that says what and how many, and opens more about it when it is pressed.
class FigureButton final : public QAbstractButton
{
    Q_OBJECT

public:
    enum class Tone { Usual, Alarm };

    explicit FigureButton(const QString &title, QWidget *parent);

    const QString &figure() const { return m_figure; }
    // The detail is what the line has no room for.
    void setFigure(const QString &figure, Tone tone, const QString &detail);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void tell(const QString &tip);
    QFont figureFont() const;

    QString m_figure;
    Tone m_tone = Tone::Usual;
};

} // namespace Tallymere
