#include "controls/windows/mnemonics.h"

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

// Those that have a letter keep it, so they come first.
template <typename Captioned> void giveLettersTo(const QList<Captioned *> &all, Letters &taken)
{
    for (const Captioned *captioned : all) {
        if (const QChar letter = letterOf(captioned->text()); !letter.isNull())
            taken.insert(letter);
    }
    for (Captioned *captioned : all) {
        QString caption = captioned->text();
        const bool wants = letterOf(caption).isNull() && !wouldLoseShortcut(*captioned);
        const qsizetype at = wants ? freeLetterIn(caption, taken) : -1;
        if (at < 0)
            continue;
        taken.insert(caption[at].toUpper());
        captioned->setText(caption.insert(at, u'&'));
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
