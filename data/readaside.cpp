#include "data/readaside.h"

#include "data/ownconnection.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace Tallymere {

namespace {

constexpr std::chrono::milliseconds longestFarewell{500};

} // namespace

// What one reading needs; the thread has it for itself.
struct ReadAside::Task
{
    Task(Engine::Database &other, Read asked, Failed ifFailed)
        : own(other)
        , read(std::move(asked))
        , failed(std::move(ifFailed))
    {
    }

    OwnConnection own;
    Read read;
    Failed failed;
};

struct ReadAside::Link
{
    std::mutex mutex;
    std::condition_variable ended;
    ReadAside *owner = nullptr; // null when it has gone
    bool isRunning = false;
};

ReadAside::ReadAside(QObject *parent)
    : QObject(parent)
    , m_link(std::make_shared<Link>())
{
    m_link->owner = this;
}

ReadAside::~ReadAside()
{
    std::unique_lock lock(m_link->mutex);
    m_link->owner = nullptr;
    m_link->ended.wait_for(lock, longestFarewell, [this] { return !m_link->isRunning; });
}

void ReadAside::start(Engine::Database &database, Read read, Failed failed)
{
    auto task = std::make_unique<Task>(database, std::move(read), std::move(failed));
    if (m_reading)
        m_next = std::move(task);
    else
        begin(std::move(task));
}

// The connection is closed before the answer is handed over, so that it is in nobody's way. A thread that waits for a server
// is left to it: nothing could end that.
void ReadAside::begin(std::unique_ptr<Task> task)
{
    m_reading = true;
    m_link->isRunning = true;
    std::thread([link = m_link, mine = std::move(task)]() mutable {
        std::function<void()> handOver;
        try {
            handOver = mine->read(mine->own.database());
        } catch (...) {
            handOver = [failed = mine->failed, failure = std::current_exception()] { failed(failure); };
        }
        mine.reset();
        const std::lock_guard lock(link->mutex);
        link->isRunning = false;
        link->ended.notify_all();
        if (ReadAside *owner = link->owner)
            QMetaObject::invokeMethod(
                owner, [owner, handOver] { owner->take(handOver); }, Qt::QueuedConnection);
    }).detach();
}

void ReadAside::take(const std::function<void()> &handOver)
{
    m_reading = false;
    if (m_next)
        return begin(std::move(m_next));
    handOver();
}

} // namespace Tallymere
