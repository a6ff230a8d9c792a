#include "tests/support/relay.h"

#include <arpa/inet.h>
#include <array>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int glance = 20; // milliseconds, between two looks whether it is over

sockaddr_in placeOf(int port)
{
    sockaddr_in place{};
    place.sin_family = AF_INET;
    place.sin_port = htons(static_cast<uint16_t>(port));
    place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return place;
}

bool isReady(int socket, int time)
{
    pollfd looked{socket, POLLIN, 0};
    return poll(&looked, 1, time) > 0;
}

QByteArray received(int socket)
{
    std::array<char, 65536> bytes{};
    const ssize_t count = recv(socket, bytes.data(), bytes.size(), 0);
    return count > 0 ? QByteArray(bytes.data(), count) : QByteArray();
}

} // namespace

Relay::Relay(int serverPort)
    : m_serverPort(serverPort)
    , m_listener(socket(AF_INET, SOCK_STREAM, 0))
{
    sockaddr_in place = placeOf(0);
    socklen_t size = sizeof place;
    bind(m_listener, reinterpret_cast<sockaddr *>(&place), size);
    listen(m_listener, 16);
    getsockname(m_listener, reinterpret_cast<sockaddr *>(&place), &size);
    m_port = ntohs(place.sin_port);
    m_accepting = std::thread([this] { accept(); });
}

Relay::~Relay()
{
    m_isOver = true;
    m_accepting.join();
    for (std::thread &thread : m_passing)
        thread.join();
}

void Relay::when(const QByteArray &word, Then then)
{
    m_word = word;
    m_then = then;
}

void Relay::accept()
{
    while (!m_isOver) {
        if (!isReady(m_listener, glance))
            continue;
        const int client = ::accept(m_listener, nullptr, nullptr);
        m_passing.emplace_back([this, client] { pass(client); });
    }
    close(m_listener);
}

// False when the connection is to end.
bool Relay::passFromClient(int client, int server)
{
    const QByteArray said = received(client);
    if (said.isEmpty())
        return false;
    const bool isIt = !m_word.isEmpty() && said.contains(m_word);
    const Then then = isIt ? m_then.exchange(Then::Nothing) : Then::Nothing;
    if (then == Then::LoseTheWord)
        return false;
    if (then == Then::FallSilent)
        m_isSilent = true;
    holdWhileSilent();
    send(server, said.constData(), static_cast<size_t>(said.size()), MSG_NOSIGNAL);
    if (then == Then::Nothing || then == Then::FallSilent)
        return true;
    received(server);
    if (then == Then::LoseTheAnswerAndStop)
        m_isOver = true;
    return false;
}

void Relay::holdWhileSilent() const
{
    while (m_isSilent && !m_isOver)
        std::this_thread::sleep_for(std::chrono::milliseconds(glance));
}

void Relay::pass(int client)
{
    const int server = socket(AF_INET, SOCK_STREAM, 0);
    const sockaddr_in place = placeOf(m_serverPort);
    bool lives = !m_isOver && connect(server, reinterpret_cast<const sockaddr *>(&place), sizeof place) == 0;
    while (lives && !m_isOver) {
        std::array<pollfd, 2> looked{{{client, POLLIN, 0}, {server, POLLIN, 0}}};
        poll(looked.data(), looked.size(), glance);
        holdWhileSilent();
        if (looked[0].revents != 0)
            lives = passFromClient(client, server);
        if (lives && looked[1].revents != 0) {
            const QByteArray said = received(server);
            lives = !said.isEmpty()
                && send(client, said.constData(), static_cast<size_t>(said.size()), MSG_NOSIGNAL) >= 0;
        }
    }
    close(server);
    close(client);
}
