#pragma once

#include "tests/endurance/disk.h"

#include <functional>
#include <QStringList>

// A day's work in one folder, recorded, and what is there whenever the power goes in it.
struct Stage
{
    QString name;
    std::function<void(const QString &folder)> run; // throws where it is not answered as it should be
    bool damages = false; // it is not sound all the time
};

class Cuts
{
public:
    // Does the work once.
    explicit Cuts(std::vector<Stage> stages);

    // Cuts the power so often, spread over the day. Each state must hold books that check finds sound, no older than what
    // was answered before the cut and no newer than what was begun; what was under way goes on then, to the same stock.
    void judge(int states, unsigned seed);
    // The same with a seed that chance gives, and fails at faults. What was looked at is printed.
    void expectNoFaults(int states);

    QString stock() const { return m_stock.last(); } // in the end

    int states = 0;
    int distinct = 0; // of books that were looked at
    int resumed = 0;
    QStringList faults;

private:
    using Verdicts = std::map<QString, QString>; // by the file of the books

    QString verdict(const Disk::Files &files, const QString &books);
    Verdicts verdicts(const Disk::Files &files);
    std::vector<Verdicts> verdictsAtSyncs();
    void judgeState(const Disk::Files &files, size_t stage, const std::vector<const Verdicts *> &legal);
    void resume(const Disk::Files &files, size_t stage);

    std::vector<Stage> m_stages;
    std::vector<Storage::Operation> m_operations;
    QStringList m_books;
    QStringList m_stock; // at the end of each stage
    std::map<size_t, QString> m_known; // verdicts, by the bytes they are on
    QStringList m_resumed;
};
