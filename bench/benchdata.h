#pragma once

#include "tests/support/teststore.h"

#include <memory>
#include <QString>
#include <QTemporaryDir>

// Databases of a given size to measure on, each made once and copied for every run. The same size gives the same
// rows.
class BenchData
{
public:
    struct Size
    {
        int items = 5'000;
        int locations = 10;
        int vendors = 50;
        int receipts = 0; // unposted
        int usages = 0; // likewise
        int adjustments = 0; // likewise
        int linesEach = 20;
        int history = 0; // rows posted earlier,
        int years = 1; // in so many fiscal years up to 2025
    };

    BenchData(Store store, const Size &size);
    ~BenchData();

    std::unique_ptr<TestUser> open() const; // itself, for what changes next to nothing
    QStringList place() const;

    // A copy of its own, gone with the object.
    class Copy
    {
    public:
        Copy(Store store, const QString &source);
        ~Copy();
        Engine::Database &database() { return m_user->database; }
        QStringList place() const; // for a TestUser, in this process or another

    private:
        Store m_store;
        QTemporaryDir m_folder;
        QString m_name;
        std::unique_ptr<TestUser> m_user;
    };
    std::unique_ptr<Copy> copy() const { return std::make_unique<Copy>(m_store, m_source); }

private:
    void fill(Engine::Database &database, const Size &size);

    Store m_store;
    QTemporaryDir m_folder;
    QString m_source; // folder or database name
};

// What raw statements connect to at the place of a copy: the file's path, or a conninfo string.
QString rawLocation(const QStringList &place);

// The process's peak memory in MB, and starting to watch it anew.
double peakMemory();
double currentMemory();
void resetPeakMemory();

struct Cost
{
    double wall = 0; // seconds
    double processor = 0; // seconds, user and system, of the processes waited for: steadier on a busy machine
};
Cost costOf(const std::function<void()> &work);
double seconds(const std::function<void()> &work);
double median(std::vector<double> values);
