#include "controls/screens/besidework.h"

#include "base/ruleerror.h"
#include "controls/windows/progressbox.h"
#include "data/ownconnection.h"
#include "engine/store/driver.h"

#include <atomic>
#include <exception>
#include <memory>
#include <mutex>
#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>
#include <utility>

namespace Tallymere {

namespace {

// Told on the thread of the work, asked on that of the screens.
class ToldProgress final : public Progress
{
public:
    void start(int steps) override
    {
        m_steps = steps;
        m_done = 0;
        ++m_started;
    }
    void step() override
    {
        ++m_done;
        if (m_cancelled)
            throw SilentAbort();
    }
    void finish() override { }
    void tell(const QString &what) override
    {
        const std::lock_guard lock(m_mutex);
        m_told = what;
    }

    QString told() const
    {
        const std::lock_guard lock(m_mutex);
        return m_told;
    }
    int steps() const { return m_steps; }
    int done() const { return m_done; }
    int started() const { return m_started; }
    void cancel() { m_cancelled = true; }

private:
    std::atomic<int> m_steps = 0;
    std::atomic<int> m_done = 0;
    std::atomic<int> m_started = 0;
    std::atomic<bool> m_cancelled = false;
    mutable std::mutex m_mutex;
    QString m_told;
};

// What ends the statement that a thread waits for, for the thread of the screens.
class StatementEnd
{
public:
    void set(std::function<void()> end)
    {
        const std::lock_guard lock(m_mutex);
        m_end = std::move(end);
    }
    void operator()()
    {
        const std::lock_guard lock(m_mutex);
        if (m_end)
            m_end();
    }

private:
    std::mutex m_mutex;
    std::function<void()> m_end;
};

class BesideWork
{
public:
    explicit BesideWork(std::function<void(Progress &)> work, std::function<void()> onCancel = {})
        : m_work(std::move(work))
        , m_thread(QThread::create([this] {
            try {
                m_work(m_told);
            } catch (...) {
                m_failure = std::current_exception();
            }
        }))
        , m_onCancel(std::move(onCancel))
    {
        m_thread->start();
    }
    ~BesideWork() { m_thread->wait(); }
    BesideWork(const BesideWork &) = delete;
    BesideWork &operator=(const BesideWork &) = delete;

    void showIn(ProgressBox &box)
    {
        constexpr unsigned long often = 20; // ms
        int started = -1;
        QString told;
        while (!m_thread->wait(often)) {
            if (m_isCancelled) {
                QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
                continue;
            }
            try {
                if (std::exchange(started, m_told.started()) != m_told.started())
                    box.start(m_told.steps());
                if (const QString now = m_told.told(); std::exchange(told, now) != now)
                    box.tell(now);
                box.at(m_told.done());
            } catch (const SilentAbort &) {
                m_isCancelled = true;
                m_told.cancel();
                if (m_onCancel)
                    m_onCancel();
            }
        }
    }

    bool isCancelled() const { return m_isCancelled; }
    void rethrow() const
    {
        if (m_failure)
            std::rethrow_exception(m_failure);
    }

private:
    const std::function<void(Progress &)> m_work;
    ToldProgress m_told;
    std::exception_ptr m_failure;
    const std::unique_ptr<QThread> m_thread;
    const std::function<void()> m_onCancel;
    bool m_isCancelled = false;
};

} // namespace

void workBeside(QWidget *window, const QString &what, const std::function<void(Progress &)> &work)
{
    ProgressBox box(window, what);
    BesideWork beside(work);
    beside.showIn(box);
    beside.rethrow();
}

void workBeside(QWidget *window, const QString &what, Engine::Database &database,
                const std::function<void(Engine::Database &, Progress &)> &work)
{
    OwnConnection own(database);
    workBeside(window, what, [&own, &work](Progress &progress) { work(own.database(), progress); });
}

void changeBeside(QWidget *window, const QString &what, Engine::Database &database,
                  const std::function<void(Engine::Database &)> &change)
{
    OwnConnection own(database);
    StatementEnd end;
    ProgressBox box(window, what);
    BesideWork beside(
        [&](Progress &told) {
            Engine::Connection &connection = own.database().connection();
            end.set(connection.interrupter());
            told.step(); // it may have been cancelled before there was anything to end
            change(own.database());
        },
        [&end] { end(); });
    beside.showIn(box);
    if (beside.isCancelled())
        throw SilentAbort();
    beside.rethrow();
}

void readBeside(QWidget *window, const QString &what, Engine::Database &database,
                const std::function<void(Engine::Connection &)> &read)
{
    changeBeside(window, what, database, [&read](Engine::Database &own) { read(own.connection()); });
}

} // namespace Tallymere
