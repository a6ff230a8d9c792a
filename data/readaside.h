#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <QObject>

namespace Engine {
class Database;
}

namespace Tallymere {

// Reads a database on a thread of its own, over a connection of its own, so that no window waits for what takes long or for a
// server that does not answer. One reading at a time: what is asked for meanwhile comes next, and what was being read for
// before it is worth nothing then.
class ReadAside final : public QObject
{
    Q_OBJECT
public:
    // Called on that thread with the same database; gives what is to be done with what it has read, on this object's thread.
    // It may use neither widgets nor what others use: it takes what it needs with it.
    using Read = std::function<std::function<void()>(Engine::Database &database)>;
    using Failed = std::function<void(const std::exception_ptr &failure)>; // on this object's thread

    explicit ReadAside(QObject *parent);
    // Nothing is handed over any more. What is being read ends by itself, and is waited for a moment at most.
    ~ReadAside() override;

    void start(Engine::Database &database, Read read, Failed failed);
    bool isReading() const { return m_reading; }

private:
    struct Task;
    struct Link;
    void begin(std::unique_ptr<Task> task);
    void take(const std::function<void()> &handOver);

    std::shared_ptr<Link> m_link; // with the thread
    bool m_reading = false;
    std::unique_ptr<Task> m_next;
};

} // namespace Tallymere
