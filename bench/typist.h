#pragma once

#include <functional>
#include <map>
#include <QStringList>
#include <random>
#include <vector>

namespace Engine {
class Database;
class EngineError;
} // namespace Engine

// Keys that somebody presses, with pauses in which he thinks, and what became of them.
class Keys
{
public:
    explicit Keys(unsigned seed)
        : m_random(seed)
    {
    }

    // What happens from one field to the next. Where somebody's lock is in the way, whoever types presses the key again; he
    // gives up after many times. Everything else that is refused is thrown on.
    void press(const QString &name, const std::function<void()> &key);
    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }
    void documentStored(const QString &number) { m_numbers.append(number); }
    void failed(const QString &text) { ++m_failures[text]; }
    void tell() const; // on standard output, for a KeyTimes to listen to

private:
    struct Refusal
    {
        int times = 0;
        bool namesHolder = true; // each time
    };
    void refused(const Engine::EngineError &error, double time);

    std::mt19937 m_random;
    std::map<QString, std::vector<double>> m_done; // seconds, by what the keys do
    std::vector<double> m_held; // of keys that told of a lock
    std::map<QString, Refusal> m_refusals; // by their texts without the holder
    std::map<QString, int> m_failures;
    QStringList m_numbers;
};

// Types documents until it is told to stop on standard input: number, whose keys ("ours", or "raw": the statements alone).
void typeDocuments(Engine::Database &database, const QStringList &arguments);
bool isTold(const QString &word); // by the next line of standard input
// Does the work over and over until "stop" comes on standard input. Gives how often.
int untilStopped(const std::function<void(int turn)> &work);
