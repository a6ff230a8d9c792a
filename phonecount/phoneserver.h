#pragma once

#include "phonecount/phoneservice.h"

#include <QElapsedTimer>
#include <QHostAddress>
#include <QObject>
#include <QSslCertificate>

namespace Tallymere {

// Serves the page of one count over TLS, at one address of this machine, from its making to its end. What a connection may
// send, how many there are and how long one may be silent has bounds.
class PhoneServer final : public QObject
{
    Q_OBJECT

public:
    // RuleError where the address cannot be listened at. It takes the same port for the same name wherever that is free,
    // so that a browser finds again what it has kept of the count.
    PhoneServer(CountDesk &desk, const QHostAddress &address, const QString &name, QObject *parent = nullptr);
    ~PhoneServer() override;

    QString newLink(); // for one device, in full
    PhoneService &service() { return *m_service; }
    const QSslCertificate &certificate() const { return m_certificate; }
    quint16 port() const { return m_port; }

Q_SIGNALS:
    void changed();

private:
    class Http;
    class Door;

    QByteArray host() const; // with the port, as browsers name it

    QHostAddress m_address;
    quint16 m_port = 0;
    QSslCertificate m_certificate;
    QElapsedTimer m_clock;
    std::unique_ptr<PhoneService> m_service;
    std::unique_ptr<Http> m_http;
};

} // namespace Tallymere
