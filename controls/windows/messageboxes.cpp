#include "controls/windows/messageboxes.h"

#include "controls/texts.h"
#include "controls/windows/icons.h"

#include <algorithm>
#include <QAbstractButton>
#include <QApplication>
#include <QHash>
#include <QMessageBox>
#include <QPointer>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QPointer<QWidget> &windowConcerned()
{
    static QPointer<QWidget> window;
    return window;
}

QWidget *shownFrom(QWidget *window)
{
    while (window && !window->isVisible())
        window = window->parentWidget() ? window->parentWidget()->window() : nullptr;
    return window;
}

constexpr int signSize = 40;

using ButtonNames = QHash<QMessageBox::StandardButton, QString>; // of those that are not named as usual

// The window for a box.
QWidget *windowInUse()
{
    static QPointer<QWidget> lastActive;
    if (QWidget *active = QApplication::activeWindow())
        lastActive = active;
    if (QWidget *concerned = shownFrom(windowConcerned()))
        return concerned;
    QWidget *window = shownFrom(lastActive);
    return window ? window : QApplication::activeModalWidget();
}

// A word wider than that loses its middle.
QString withWordsOf(int width, const QString &text, const QFontMetrics &metrics)
{
    QString fitting;
    for (const QString &line : text.split(u'\n')) {
        QStringList words = line.split(u' ');
        for (QString &word : words)
            word = metrics.elidedText(word, Qt::ElideMiddle, width);
        fitting += words.join(u' ') + u'\n';
    }
    fitting.chop(1);
    return fitting;
}

// What of the text a box has room for that stays within the screen. Boxes break their lines at that width at most.
QString fittingText(const QString &text, const QFontMetrics &metrics, QSize screen)
{
    constexpr qsizetype most = 4000; // characters, which no screen shows
    const int height = screen.height() / 2;
    const int width = std::min(screen.width() / 2, 500);
    const auto fits = [&](const QString &shown) {
        const QRect room(0, 0, width, QWIDGETSIZE_MAX);
        return metrics.boundingRect(room, Qt::TextWordWrap | Qt::TextExpandTabs, shown).height() <= height;
    };
    const QString whole = withWordsOf(screen.width() * 3 / 5, text.left(most), metrics);
    if (text.size() <= most && fits(whole))
        return whole;
    const QString mark = u"..."_s;
    qsizetype fitting = 0;
    for (qsizetype tooLong = whole.size(); tooLong - fitting > 1;) {
        const qsizetype tried = (fitting + tooLong) / 2;
        (fits(whole.left(tried) + mark) ? fitting : tooLong) = tried;
    }
    return whole.left(fitting) + mark;
}

// With letters, which Qt's own texts leave out on some systems.
void nameButtons(const QMessageBox &box)
{
    for (QAbstractButton *button : box.buttons())
        button->setIcon({}); // as elsewhere, the words are enough
    const std::pair<QMessageBox::StandardButton, QString> texts[] = {
        {QMessageBox::Ok, ControlsTexts::tr("&OK")},       {QMessageBox::Cancel, ControlsTexts::tr("&Cancel")},
        {QMessageBox::Yes, ControlsTexts::tr("&Yes")},     {QMessageBox::No, ControlsTexts::tr("&No")},
        {QMessageBox::Retry, ControlsTexts::tr("&Retry")},
    };
    for (const auto &[which, text] : texts) {
        if (QAbstractButton *button = box.button(which))
            button->setText(text);
    }
}

Glyph glyphOf(QMessageBox::Icon icon)
{
    switch (icon) {
    case QMessageBox::Question:
        return Glyph::Help;
    case QMessageBox::Warning:
        return Glyph::Warning;
    case QMessageBox::Critical:
        return Glyph::Error;
    default:
        return Glyph::Information;
    }
}

QMessageBox::StandardButton ask(QMessageBox::Icon icon, const QString &title, const QString &text,
                                QMessageBox::StandardButtons buttons, QMessageBox::StandardButton preset,
                                const ButtonNames &names = {})
{
    QMessageBox box(icon, title, {}, buttons, windowInUse());
    box.setObjectName(u"messageBox"_s);
    box.setIconPixmap(glyphPixmap(box, glyphOf(icon), signSize));
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    box.setText(fittingText(text, box.fontMetrics(), box.screen()->availableSize()));
    if (box.text() != text)
        box.setDetailedText(text); // whole, behind a button
    nameButtons(box);
    box.setDefaultButton(preset);
    for (auto name = names.cbegin(); name != names.cend(); ++name)
        box.button(name.key())->setText(*name);
    // A box inside a long run must not show the hourglass.
    const bool busy = QApplication::overrideCursor() != nullptr;
    if (busy)
        QApplication::setOverrideCursor(Qt::ArrowCursor);
    const int answer = box.exec();
    if (busy)
        QApplication::restoreOverrideCursor();
    return static_cast<QMessageBox::StandardButton>(answer);
}

Answer answerOf(QMessageBox::StandardButton button)
{
    switch (button) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return Answer::Cancel;
    }
}

QString boxTitle(const char *text) { return ControlsTexts::tr(text); }

} // namespace

BoxesOver::BoxesOver(QWidget *window)
    : m_outer(windowConcerned())
{
    if (window)
        windowConcerned() = window;
}

BoxesOver::~BoxesOver() { windowConcerned() = m_outer; }

void MessageBoxes::inform(const QString &text)
{
    ask(QMessageBox::Information, boxTitle(QT_TRANSLATE_NOOP("Controls", "Information")), text, QMessageBox::Ok,
        QMessageBox::Ok);
}

void MessageBoxes::warn(const QString &text)
{
    ask(QMessageBox::Warning, boxTitle(QT_TRANSLATE_NOOP("Controls", "Warning")), text, QMessageBox::Ok,
        QMessageBox::Ok);
}

void MessageBoxes::error(const QString &text)
{
    ask(QMessageBox::Critical, boxTitle(QT_TRANSLATE_NOOP("Controls", "Error")), text, QMessageBox::Ok,
        QMessageBox::Ok);
}

bool MessageBoxes::confirm(Question question, const QString &text)
{
    if (question == Question::YesNo || question == Question::Loss) {
        const auto preset = question == Question::Loss ? QMessageBox::No : QMessageBox::Yes;
        return ask(QMessageBox::Question, caption(question), text, QMessageBox::Yes | QMessageBox::No, preset)
            == QMessageBox::Yes;
    }
    const auto icon = question == Question::Warning ? QMessageBox::Warning : QMessageBox::Question;
    return ask(icon, caption(question), text, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel)
        == QMessageBox::Ok;
}

Answer MessageBoxes::yesNoCancel(const QString &text, const QString &title)
{
    return answerOf(ask(QMessageBox::Question, title.isEmpty() ? QGuiApplication::applicationDisplayName() : title,
                        text, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes));
}

Answer MessageBoxes::choose(const QString &text, const QString &first, const QString &second)
{
    QMessageBox::StandardButtons buttons = QMessageBox::Yes | QMessageBox::Cancel;
    ButtonNames names{{QMessageBox::Yes, first}};
    if (!second.isEmpty()) {
        buttons |= QMessageBox::No;
        names.insert(QMessageBox::No, second);
    }
    return answerOf(ask(QMessageBox::Warning, caption(Question::Warning), text, buttons, QMessageBox::Yes, names));
}

bool MessageBoxes::retry(const QString &text)
{
    return ask(QMessageBox::Critical, boxTitle(QT_TRANSLATE_NOOP("Controls", "Error")), text,
               QMessageBox::Retry | QMessageBox::Cancel, QMessageBox::Retry)
        == QMessageBox::Retry;
}

} // namespace Tallymere
