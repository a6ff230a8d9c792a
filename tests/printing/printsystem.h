#pragma once

#include <cups/cups.h>
#include <gtest/gtest.h>
#include <QDeadlineTimer>
#include <QFile>
#include <QString>
#include <QThread>

// The print system that cups.sh has started in the folder which TALLYMERE_TEST_CUPS names; where it could not be started
// there, or was not, isRunning() is false and a test is skipped. While an object lives, this process and those that it
// starts print with it.
class PrintSystem
{
public:
    PrintSystem()
    {
        QFile file(qEnvironmentVariable("TALLYMERE_TEST_CUPS") + QStringLiteral("/home"));
        if (!file.open(QIODevice::ReadOnly))
            return;
        m_home = QString::fromLocal8Bit(file.readAll().trimmed());
        useServer(m_home + QStringLiteral("/socket"));
        QFile::remove(m_home + QStringLiteral("/printed.pdf"));
    }
    ~PrintSystem() { useServer({}); }
    Q_DISABLE_COPY(PrintSystem)

    bool isRunning() const { return !m_home.isEmpty(); }
    QString printerDescription() const { return m_home + QStringLiteral("/pdf.ppd"); }

    // The PDF file with what has arrived at the printer; fails when the jobs do not come to an end.
    QString printed() const
    {
        const QDeadlineTimer patience(120'000);
        while (jobsInHand() && !patience.hasExpired())
            QThread::msleep(20);
        EXPECT_FALSE(jobsInHand()) << "The print system does not end its jobs.";
        return m_home + QStringLiteral("/printed.pdf");
    }

    // A socket; with an empty name the machine's own.
    static void useServer(const QString &socket)
    {
        socket.isEmpty() ? qunsetenv("CUPS_SERVER") : qputenv("CUPS_SERVER", socket.toLocal8Bit());
        cupsSetServer(nullptr); // looks anew
    }

private:
    static bool jobsInHand()
    {
        cups_job_t *jobs = nullptr;
        const int count = cupsGetJobs(&jobs, nullptr, 0, CUPS_WHICHJOBS_ACTIVE);
        cupsFreeJobs(count, jobs);
        return count > 0;
    }

    QString m_home;
};
