#include "controls/messageboxes.h"

#include <QApplication>
#include <QCoreApplication>
#include <QMessageBox>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// Between two boxes no window is active for a moment; the second comes over the same window as the first. A dialog
// that has been hidden leaves its place to the window that it was opened from.
QWidget *windowInUse()
{
    static QPointer<QWidget> last;
    if (QWidget *active = QApplication::activeWindow())
        last = active;
    QWidget *window = last;
    while (window && !window->isVisible())
        window = window->parentWidget() ? window->parentWidget()->window() : nullptr;
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

QString title(const char *text) { return QCoreApplication::translate("MessageBoxes", text); }

} // namespace

void MessageBoxes::inform(const QString &text)
{
    ask(QMessageBox::Information, title(QT_TRANSLATE_NOOP("MessageBoxes", "Information")), text, QMessageBox::Ok,
        QMessageBox::Ok);
}

void MessageBoxes::warn(const QString &text)
{
    ask(QMessageBox::Warning, title(QT_TRANSLATE_NOOP("MessageBoxes", "Warning")), text, QMessageBox::Ok,
        QMessageBox::Ok);
}

void MessageBoxes::error(const QString &text)
{
    ask(QMessageBox::Critical, title(QT_TRANSLATE_NOOP("MessageBoxes", "Error")), text, QMessageBox::Ok,
        QMessageBox::Ok);
}

bool MessageBoxes::confirm(Question question, const QString &text)
{
    if (question == Question::YesNo) {
        return ask(QMessageBox::Question, caption(question), text, QMessageBox::Yes | QMessageBox::No,
                   QMessageBox::Yes)
            == QMessageBox::Yes;
    }
    const auto icon = question == Question::Warning ? QMessageBox::Warning : QMessageBox::Question;
    return ask(icon, caption(question), text, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel)
        == QMessageBox::Ok;
}

Answer MessageBoxes::yesNoCancel(const QString &text)
{
    switch (ask(QMessageBox::Question, QGuiApplication::applicationDisplayName(), text,
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
    return ask(QMessageBox::Critical, title(QT_TRANSLATE_NOOP("MessageBoxes", "Error")), text,
               QMessageBox::Retry | QMessageBox::Cancel, QMessageBox::Retry)
        == QMessageBox::Retry;
}

} // namespace Tallymere
