#include "controls/windows/factlist.h"

#include "controls/windows/look.h"
#include "controls/windows/screenmetrics.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace Tallymere {

namespace {

// A fact in its row. A screen reader reads it as one.
class Fact final : public QWidget
{
public:
    Fact(const QString &name, const QString &figure, FactList::Tone tone, QWidget *parent)
        : QWidget(parent)
        , m_name(name)
        , m_figure(figure)
        , m_tone(tone)
    {
        setAccessibleName(name + u' ' + figure);
        setFixedHeight(scaled(this, Space::row));
        const QFontMetrics metrics(bold());
        setMinimumWidth(metrics.horizontalAdvance(name) + metrics.horizontalAdvance(figure)
                        + scaled(this, Space::part));
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const Look look(palette());
        QPainter painter(this);
        painter.setPen(look.colour(Look::Role::Line));
        painter.drawLine(rect().bottomLeft(), rect().bottomRight());
        const bool isTotal = m_tone == FactList::Tone::Total;
        painter.setFont(isTotal ? bold() : font());
        painter.setPen(look.colour(Look::Role::Text));
        painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter, m_name);
        painter.setFont(bold());
        if (m_tone == FactList::Tone::Negative)
            painter.setPen(look.on(palette().color(QPalette::Window), Look::Role::Negative));
        painter.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter, m_figure);
    }

private:
    QFont bold() const
    {
        QFont result = font();
        result.setBold(true);
        return result;
    }

    const QString m_name;
    const QString m_figure;
    const FactList::Tone m_tone;
};

} // namespace

FactList::FactList(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->setAlignment(Qt::AlignTop);
}

void FactList::clear()
{
    while (QLayoutItem *item = m_layout->takeAt(0)) {
        delete item->widget();
        delete item;
    }
}

void FactList::addHead(const QString &text)
{
    auto *head = new QLabel(text, this);
    QFont font = headFont(head->font());
    font.setCapitalization(QFont::AllUppercase);
    head->setFont(font);
    if (m_layout->count() > 0)
        m_layout->addSpacing(scaled(this, Space::group));
    head->setFixedHeight(scaled(this, Space::row));
    m_layout->addWidget(head);
}

void FactList::addFact(const QString &name, const QString &figure, Tone tone)
{
    m_layout->addWidget(new Fact(name, figure, tone, this));
}

} // namespace Tallymere
