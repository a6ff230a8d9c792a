#include "frame/serverlabel.h"

#include "engine/store/database.h"
#include "engine/store/session.h"
#include "engine/values/error.h"
#include "engine/values/userlocale.h"

#include <chrono>
#include <QApplication>
#include <QPointer>
#include <QTime>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Tallymere {

namespace {

constexpr auto betweenLooks = 2s;
constexpr auto goodNews = 15s; // stays for so long

} // namespace

ServerLabel::ServerLabel(QWidget *parent)
    : ElidedLabel(parent)
{
    setObjectName(QStringLiteral("serverLabel"));
    setAccessibleName(tr("Server"));
    hide();
    m_looking.setInterval(betweenLooks);
    connect(&m_looking, &QTimer::timeout, this, &ServerLabel::look);
}

// The news come in the middle of what a screen does, so they are only written down there.
void ServerLabel::follow(Engine::Database &database)
{
    m_database = &database;
    database.session().serverChanged = [label = QPointer(this)](bool isThere) {
        if (label)
            QMetaObject::invokeMethod(
                label, [label, isThere] { label->tell(isThere); }, Qt::QueuedConnection);
    };
    m_looking.start();
}

void ServerLabel::tell(bool isThere)
{
    const QString time = Engine::userLocale().locale.toString(QTime::currentTime(), QLocale::ShortFormat);
    setText(isThere ? tr("Connected to the server again at %1.").arg(time)
                    : tr("No connection to the server since %1. What is typed stays; it will be connected again.")
                          .arg(time));
    setVisible(true);
    markTitles(isThere);
    if (!isThere)
        return;
    Q_EMIT connectedAgain();
    QTimer::singleShot(goodNews, this, [this, text = text()] { setVisible(text != this->text()); });
}

// Whoever works in another window does not see this one.
void ServerLabel::markTitles(bool isThere)
{
    const QString mark = u" - "_s + tr("No connection to the server");
    for (QWidget *other : QApplication::topLevelWidgets()) {
        const QString title = other->windowTitle();
        const bool isMarked = title.endsWith(mark);
        if (isThere && isMarked)
            other->setWindowTitle(title.chopped(mark.size()));
        else if (!isThere && !isMarked && other->isVisible() && !title.isEmpty())
            other->setWindowTitle(title + mark);
    }
}

void ServerLabel::look()
{
    if (!m_database->isOpen() || !m_database->connection().hasEnded() || m_search.isReading())
        return;
    m_search.start(
        *m_database,
        [this](Engine::Database &database) {
            database.connection();
            return [this] { connectAgain(); };
        },
        [](const std::exception_ptr &) {}); // it is looked for again
}

// Not while somebody relies on locks that went with the connection, who has to be told of it first.
void ServerLabel::connectAgain()
{
    try {
        if (m_database->connection().hasEnded())
            m_database->connection().execute(QStringLiteral("SELECT 1"));
    } catch (const Engine::EngineError &) {
        // the next look finds it gone
    }
}

} // namespace Tallymere
