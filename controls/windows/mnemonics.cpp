#include "controls/windows/mnemonics.h"

#include <algorithm>
#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSet>

namespace Tallymere {

namespace {

using Letters = QSet<QChar>;

// Of the mark, which doubled stands for itself; -1 without one.
qsizetype markIn(const QString &caption)
{
    for (qsizetype at = caption.indexOf(u'&'); at >= 0; at = caption.indexOf(u'&', at + 2)) {
        if (at + 1 < caption.size() && caption[at + 1] != u'&')
            return at;
    }
    return -1;
}

// Where a word begins first; -1 when all its letters are taken.
qsizetype freeLetterIn(const QString &caption, const Letters &taken)
{
    const auto isFree = [&](qsizetype at) {
        return caption[at].isLetterOrNumber() && !taken.contains(caption[at].toUpper());
    };
    for (const bool beginnings : {true, false}) {
        for (qsizetype at = 0; at < caption.size(); ++at) {
            const bool begins = at == 0 || !caption[at - 1].isLetterOrNumber();
            if (begins == beginnings && isFree(at))
                return at;
        }
    }
    return -1;
}

// The letter of a button is its shortcut, and takes the place of another.
bool wouldLoseShortcut(const QAbstractButton &button) { return !button.shortcut().isEmpty(); }
bool wouldLoseShortcut(const QAction &) { return false; }

// Captions that are given letters; where all of a short one are taken, another that has got one of them takes its next.
class LetterGiver
{
public:
    explicit LetterGiver(Letters &taken)
        : m_taken(taken)
    {
    }

    qsizetype add(const QString &caption)
    {
        m_given.append({caption, freeLetterIn(caption, m_taken)});
        Given &added = m_given.last();
        for (qsizetype at = 0; added.at < 0 && at < caption.size(); ++at) {
            if (giveUp(caption[at].toUpper()))
                added.at = at;
        }
        if (added.at >= 0)
            m_taken.insert(added.letter());
        return m_given.size() - 1;
    }

    QString captionOf(qsizetype number) const
    {
        const Given &given = m_given[number];
        return given.at < 0 ? given.caption : QString(given.caption).insert(given.at, u'&');
    }

private:
    struct Given
    {
        QString caption;
        qsizetype at = -1;

        QChar letter() const { return at < 0 ? QChar() : caption[at].toUpper(); }
    };

    bool giveUp(QChar letter)
    {
        const auto owner = std::ranges::find(m_given, letter, &Given::letter);
        const qsizetype next = owner == m_given.end() ? -1 : freeLetterIn(owner->caption, m_taken);
        if (next < 0)
            return false;
        owner->at = next;
        m_taken.insert(owner->letter());
        return true;
    }

    Letters &m_taken;
    QList<Given> m_given;
};

// Those that have a letter keep it, so they come first.
template <typename Captioned> void giveLettersTo(const QList<Captioned *> &all, Letters &taken)
{
    for (const Captioned *captioned : all) {
        if (const QChar letter = letterOf(captioned->text()); !letter.isNull())
            taken.insert(letter);
    }
    LetterGiver letters(taken);
    QList<std::pair<Captioned *, qsizetype>> given;
    for (Captioned *captioned : all) {
        if (letterOf(captioned->text()).isNull() && !wouldLoseShortcut(*captioned))
            given.append({captioned, letters.add(captioned->text())});
    }
    for (const auto &[captioned, number] : given) {
        if (const QString caption = letters.captionOf(number); caption != captioned->text())
            captioned->setText(caption);
    }
}

template <typename Widget> QList<Widget *> widgetsIn(const QWidget &window)
{
    QList<Widget *> widgets = window.findChildren<Widget *>();
    widgets.removeIf([&window](const Widget *widget) { return widget->window() != &window; });
    return widgets;
}

} // namespace

QString plainCaption(QString caption)
{
    for (qsizetype at = caption.indexOf(u'&'); at >= 0; at = caption.indexOf(u'&', at + 1))
        caption.remove(at, 1);
    return caption;
}

QChar letterOf(const QString &caption)
{
    const qsizetype mark = markIn(caption);
    return mark < 0 ? QChar() : caption[mark + 1].toUpper();
}

void giveLetters(const QMenu &menu)
{
    Letters taken;
    giveLettersTo(menu.actions(), taken);
}

void giveLetters(const QWidget &window)
{
    Letters taken;
    const auto take = [&taken](const QString &caption) {
        if (const QChar letter = letterOf(caption); !letter.isNull())
            taken.insert(letter);
    };
    for (const QLabel *label : widgetsIn<QLabel>(window)) {
        if (label->buddy())
            take(label->text());
    }
    for (const QAbstractButton *button : widgetsIn<QAbstractButton>(window))
        take(button->text());
    if (const QMenuBar *bar = widgetsIn<QMenuBar>(window).value(0))
        giveLettersTo(bar->actions(), taken);
    giveLettersTo(widgetsIn<QPushButton>(window), taken);
}

} // namespace Tallymere
