#pragma once

#include <atomic>
#include <QByteArray>
#include <thread>
#include <vector>

// Stands between the program and a server of this machine, and passes on what they say until a word comes from the
// program.
class Relay
{
public:
    enum class Then { Nothing, LoseTheWord, LoseTheAnswer, LoseTheAnswerAndStop, FallSilent };

    explicit Relay(int serverPort);
    ~Relay(); // when all connections have ended
    Relay(const Relay &) = delete;
    Relay &operator=(const Relay &) = delete;

    int port() const { return m_port; }
    void when(const QByteArray &word, Then then); // once
    void speak() { m_isSilent = false; } // again, to whoever waits

private:
    void accept();
    void pass(int client);
    bool passFromClient(int client, int server);
    void holdWhileSilent() const;

    const int m_serverPort;
    int m_listener;
    int m_port = 0;
    QByteArray m_word;
    std::atomic<Then> m_then = Then::Nothing;
    std::atomic<bool> m_isSilent = false;
    std::atomic<bool> m_isOver = false;
    std::vector<std::thread> m_passing;
    std::thread m_accepting;
};
