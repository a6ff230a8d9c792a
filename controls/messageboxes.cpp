#include "controls/messageboxes.h"

#include "controls/texts.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>

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

QMessageBox::StandardButton ask(QMessageBox::Icon icon, const QString &title, const QString &text,
                                QMessageBox::StandardButtons buttons, QMessageBox::StandardButton preset)
{
    QMessageBox box(icon, title, text, buttons, windowInUse());
    box.setObjectName(u"messageBox"_s);
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    box.setDefaultButton(preset);
    // A box inside a long run must not show the hourglass.
    const bool busy = QApplication::overrideCursor() != nullptr;
    if (busy)
        QApplication::setOverrideCursor(Qt::ArrowCursor);
    const int answer = box.exec();
    if (busy)
        QApplication::restoreOverrideCursor();
    return static_cast<QMessageBox::StandardButton>(answer);
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
    switch (ask(QMessageBox::Question, title.isEmpty() ? QGuiApplication::applicationDisplayName() : title, text,
                QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes)) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return Answer::Cancel;
    }
}

bool MessageBoxes::retry(const QString &text)
{
    return ask(QMessageBox::Critical, boxTitle(QT_TRANSLATE_NOOP("Controls", "Error")), text,
               QMessageBox::Retry | QMessageBox::Cancel, QMessageBox::Retry)
        == QMessageBox::Retry;
}

} // namespace Tallymere
