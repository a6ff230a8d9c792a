#pragma once

#include <QAbstractButton>

namespace Tallymere {

// What a list is narrowed to, in words, with a sign that says that a click takes it away. It is as wide as its words, and
// shortens them where there is less room.
class FilterChip final : public QAbstractButton
{
    Q_OBJECT

public:
    explicit FilterChip(QWidget *parent);

    void setText(const QString &words);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int marksWidth() const; // of the sign and the space around the words
    QString shownWords(int width) const;
};

} // namespace Tallymere
