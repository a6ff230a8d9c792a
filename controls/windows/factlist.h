#pragma once

#include <QWidget>

class QVBoxLayout;

namespace Tallymere {

// Facts below each other: a name at the left, a figure at the right, a line across; groups of them under headings.
class FactList : public QWidget
{
    Q_OBJECT

public:
    enum class Tone { Usual, Negative, Total };

    explicit FactList(QWidget *parent = nullptr);

    void clear();
    void addHead(const QString &text);
    void addFact(const QString &name, const QString &figure, Tone tone = Tone::Usual);

private:
    QVBoxLayout *m_layout;
};

} // namespace Tallymere
