#include "controls/fields/inusenotice.h"

#include "base/ruleerror.h"
#include "controls/fields/fieldbinder.h"
#include "controls/windows/screenmetrics.h"
#include "engine/records/table.h"
#include "engine/store/database.h"
#include "engine/values/error.h"

#include <chrono>
#include <QApplication>
#include <QBoxLayout>
#include <QEvent>
#include <utility>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr std::chrono::seconds pauseBetweenLooks{3}; // while the notice is shown
constexpr int marginPixels = 4;

} // namespace

InUseNotice::InUseNotice(QWidget &screen, FieldBinder &binder)
    : StateLabel(&screen, State::Notice)
    , m_screen(screen)
    , m_binder(binder)
{
    setObjectName(u"lblInUse"_s);
    setWordWrap(true);
    setTextFormat(Qt::PlainText); // names are shown as they are
    setMargin(scaled(this, marginPixels));
    hide();
    if (auto *rows = qobject_cast<QBoxLayout *>(screen.layout()))
        rows->insertWidget(0, this);
    m_again.setSingleShot(true);
    m_again.setInterval(pauseBetweenLooks);
    connect(&m_again, &QTimer::timeout, this, &InUseNotice::look);
    screen.installEventFilter(this);
}

bool InUseNotice::eventFilter(QObject *watched, QEvent *event)
{
    // A window that is shown becomes active with that.
    const bool isShown = event->type() == QEvent::Show;
    if (isShown || (event->type() == QEvent::WindowActivate && !std::exchange(m_isShown, false)))
        look();
    m_isShown = m_isShown || isShown;
    return StateLabel::eventFilter(watched, event);
}

void InUseNotice::look()
{
    if (!m_screen.isVisible())
        return;
    m_asked = askHolders();
    QMetaObject::invokeMethod(this, &InUseNotice::tell, Qt::QueuedConnection);
}

// Nothing is said of a store that cannot be asked: whatever is done next tells.
InUseNotice::Answers InUseNotice::askHolders() const
{
    Answers answers;
    const QList<Engine::Table *> tables = m_binder.tables();
    try {
        for (const Engine::Table *table : tables) {
            if (!table->database().connection().inTransaction()) // else what is written tells who is in its way
                answers.append(table->askEditedBy());
        }
    } catch (const Engine::EngineError &) {
    }
    return answers;
}

// A connection that is lost again is not told of here.
QString InUseNotice::holdAgain() const
{
    const QList<Engine::Table *> tables = m_binder.tables();
    try {
        for (Engine::Table *table : tables)
            table->holdAgain();
    } catch (const RuleError &error) {
        return error.message();
    } catch (const Engine::EngineError &error) {
        return error.isOfTheStore() ? QString() : error.text();
    }
    return {};
}

void InUseNotice::tell()
{
    const std::optional<Answers> asked = std::exchange(m_asked, std::nullopt);
    if (!asked)
        return;
    std::optional<Engine::LockOwner> owner;
    try {
        for (const auto &answer : *asked)
            owner = owner ? owner : answer();
    } catch (const Engine::EngineError &) {
    }
    const QString refusal = owner ? QString() : holdAgain();
    if (owner)
        setText(tr("In use by %1. You can read it; it can be changed once it is free.").arg(owner->description()));
    else if (!refusal.isEmpty())
        setText(refusal);
    setVisible(owner || !refusal.isEmpty());
    m_binder.setInUse(owner.has_value());
    if (owner)
        m_again.start();
}

} // namespace Tallymere
