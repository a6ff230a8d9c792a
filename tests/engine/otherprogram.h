#pragma once

#include "tests/support/teststore.h"

#include <QCoreApplication>
#include <QProcess>

// Another user's program.
class OtherProgram
{
public:
    explicit OtherProgram(const TestStore &store)
        : OtherProgram(store.place())
    {
    }
    explicit OtherProgram(const QStringList &place)
    {
        m_process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/engine_lock_holder"), place);
    }
    ~OtherProgram() { kill(); }

    QString ask(const QString &order)
    {
        tell(order);
        if (!m_process.canReadLine())
            m_process.waitForReadyRead(patience);
        return QString::fromUtf8(m_process.readLine()).trimmed();
    }
    void tell(const QString &order)
    {
        m_process.write((order + u'\n').toUtf8());
        m_process.waitForBytesWritten(patience);
    }
    void kill()
    {
        m_process.kill();
        m_process.waitForFinished(patience);
    }
    qint64 id() const { return m_process.processId(); }

private:
    static constexpr int patience = 120'000; // milliseconds

    QProcess m_process;
};
