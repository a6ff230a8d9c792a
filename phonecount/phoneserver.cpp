#include "phonecount/phoneserver.h"

#include "base/ruleerror.h"
#include "phonecount/certificate.h"
#include "phonecount/texts.h"

#include <QAbstractHttpServer>
#include <QCryptographicHash>
#include <QHttpServerRequest>
#include <QHttpServerResponder>
#include <QSslConfiguration>
#include <QSslServer>
#include <QtEndian>
#include <QTimer>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr int mostConnections = 48;
constexpr qint64 longestRequest = qint64(16) * 1024; // its head with it
constexpr int handshakeTime = 5000; // milliseconds
constexpr int silence = 20'000; // from the last answer to the end of the next request
constexpr quint16 firstPort = 21'000;
constexpr quint16 ports = 10'000;
constexpr quint16 triedPorts = 5;

quint16 portFor(const QString &name)
{
    const QByteArray sum = QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha256);
    return firstPort + qFromBigEndian<quint16>(sum.constData()) % ports;
}

PhoneRequest::Method methodOf(const QHttpServerRequest &request)
{
    switch (request.method()) {
    case QHttpServerRequest::Method::Get:
        return PhoneRequest::Method::Get;
    case QHttpServerRequest::Method::Post:
        return PhoneRequest::Method::Post;
    default:
        return PhoneRequest::Method::Other;
    }
}

PhoneRequest readRequest(const QHttpServerRequest &request)
{
    return {.method = methodOf(request),
            .path = request.url().toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority),
            .host = request.value("host"),
            .origin = request.value("origin"),
            .contentType = request.value("content-type"),
            .cookies = request.value("cookie"),
            .body = request.body(),
            .from = request.remoteAddress().toString()};
}

} // namespace

// --- the connections --------------------------------------------------------------------------------------------

class PhoneServer::Door final : public QSslServer
{
public:
    explicit Door(const Certificate &made)
    {
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        configuration.setLocalCertificate(made.certificate);
        configuration.setPrivateKey(made.key);
        configuration.setPeerVerifyMode(QSslSocket::VerifyNone); // phones have no certificate
        configuration.setProtocol(QSsl::TlsV1_2OrLater);
        setSslConfiguration(configuration);
        setHandshakeTimeout(handshakeTime);
        setMaxPendingConnections(mostConnections + 1); // or those without a handshake would keep all others waiting
        connect(this, &QSslServer::startedEncryptionHandshake, this,
                [this](QSslSocket *socket) { watch(*socket); });
    }

protected:
    void incomingConnection(qintptr descriptor) override
    {
        if (findChildren<QSslSocket *>(Qt::FindDirectChildrenOnly).size() < mostConnections)
            return QSslServer::incomingConnection(descriptor);
        QTcpSocket refused;
        refused.setSocketDescriptor(descriptor);
        refused.abort();
    }

private:
    // Bytes are counted as they come, since a request is put together before anybody judges it.
    void watch(QSslSocket &socket)
    {
        socket.setReadBufferSize(2 * longestRequest); // beyond which nothing more would be told of
        auto *patience = new QTimer(&socket);
        connect(patience, &QTimer::timeout, &socket, &QSslSocket::abort);
        patience->start(silence);
        const auto received = std::make_shared<qint64>(0);
        connect(&socket, &QSslSocket::readyRead, &socket, [received, &socket] {
            *received += socket.bytesAvailable();
            if (*received > longestRequest)
                socket.abort();
        });
        connect(&socket, &QSslSocket::bytesWritten, &socket, [received, patience] {
            *received = 0;
            patience->start(silence);
        });
    }
};

// --- the requests -----------------------------------------------------------------------------------------------

class PhoneServer::Http final : public QAbstractHttpServer
{
public:
    explicit Http(PhoneServer &server)
        : m_server(server)
    {
    }

protected:
    bool handleRequest(const QHttpServerRequest &request, QTcpSocket *socket) override
    {
        write(request, socket, m_server.m_service->answer(readRequest(request)));
        return true;
    }
    void missingHandler(const QHttpServerRequest &request, QTcpSocket *socket) override
    {
        write(request, socket, {});
    }

private:
    static void write(const QHttpServerRequest &request, QTcpSocket *socket, const PhoneAnswer &answer)
    {
        QHttpServerResponder responder = makeResponder(request, socket);
        responder.writeStatusLine(static_cast<QHttpServerResponder::StatusCode>(answer.status));
        responder.writeHeader("Content-Type", answer.type);
        responder.writeHeader("Content-Length", QByteArray::number(answer.body.size()));
        for (const auto &[name, value] : answer.headers)
            responder.writeHeader(name, value);
        responder.writeBody(answer.body);
    }

    PhoneServer &m_server;
};

// --- the server -------------------------------------------------------------------------------------------------

PhoneServer::PhoneServer(CountDesk &desk, const QHostAddress &address, const QString &name, QObject *parent)
    : QObject(parent)
    , m_address(address)
{
    const Certificate made = certificateFor(address);
    m_certificate = made.certificate;
    auto door = std::make_unique<Door>(made);
    for (quint16 i = 0; i < triedPorts && !door->isListening(); ++i)
        door->listen(address, static_cast<quint16>(portFor(name) + i));
    if (!door->isListening() && !door->listen(address))
        throw RuleError(
            PhoneCountTexts::tr("No page can be served at %1: %2").arg(address.toString(), door->errorString()));
    m_port = door->serverPort();
    m_clock.start();
    m_service = std::make_unique<PhoneService>(desk, host(), [this] { return m_clock.elapsed(); });
    m_service->changed = [this] { Q_EMIT changed(); };
    m_http = std::make_unique<Http>(*this);
    m_http->bind(door.release()); // which belongs to it from now on
}

PhoneServer::~PhoneServer() = default;

QByteArray PhoneServer::host() const
{
    const QByteArray address = m_address.toString().toLatin1();
    const bool isLong = m_address.protocol() == QAbstractSocket::IPv6Protocol;
    return (isLong ? '[' + address + ']' : address) + ':' + QByteArray::number(m_port);
}

QString PhoneServer::newLink() { return u"https://"_s + QString::fromLatin1(host() + '/' + m_service->newLink()); }

} // namespace Tallymere
