#include "controls/windows/progressbox.h"

#include "base/ruleerror.h"
#include "controls/texts.h"
#include "controls/windows/screenmetrics.h"

#include <limits>
#include <QCoreApplication>
#include <QEventLoop>
#include <QLabel>
#include <QProgressBar>
#include <QProgressDialog>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
constexpr int leastWidth = 320;
} // namespace

ProgressBox::ProgressBox(QWidget *window, const QString &what, std::chrono::milliseconds shownAfter)
    : m_box(std::make_unique<QProgressDialog>(window))
    , m_what(what)
    , m_shownAfter(shownAfter)
{
    m_box->setObjectName(u"dlgProgress"_s);
    m_box->setWindowTitle(window ? window->windowTitle() : QString());
    m_box->setMinimumWidth(scaled(m_box.get(), leastWidth));
    auto *label = new QLabel(what, m_box.get());
    label->setTextFormat(Qt::PlainText); // a file's name
    m_box->setLabel(label);
    auto *bar = new QProgressBar(m_box.get());
    bar->setAccessibleName(what);
    m_box->setBar(bar);
    m_box->setCancelButtonText(ControlsTexts::tr("&Cancel"));
    m_box->setWindowModality(Qt::ApplicationModal);
    m_box->setMinimumDuration(std::numeric_limits<int>::max()); // it is shown from here
    m_box->setAutoClose(false);
    m_box->setAutoReset(false);
    m_sinceStart.start();
}

ProgressBox::~ProgressBox() = default;

void ProgressBox::showStart(int steps)
{
    m_box->setRange(0, steps);
    m_box->setValue(0);
}

void ProgressBox::showDone(int steps)
{
    if (!m_box->isVisible() && m_sinceStart.elapsed() >= m_shownAfter.count())
        m_box->show();
    m_box->setValue(steps);
    repaint();
    if (m_box->wasCanceled())
        throw SilentAbort();
}

void ProgressBox::tell(const QString &what)
{
    m_box->setLabelText(what.isEmpty() ? m_what : m_what + u'\n' + what); // which makes room for it
}

void ProgressBox::finish()
{
    if (!m_box->isVisible())
        return;
    m_box->setValue(m_box->maximum());
}

// Until the box is there nothing that the user types or clicks gets through, so that no window that the work is about goes.
void ProgressBox::repaint()
{
    QCoreApplication::processEvents(m_box->isVisible() ? QEventLoop::AllEvents
                                                       : QEventLoop::ExcludeUserInputEvents);
}

} // namespace Tallymere
