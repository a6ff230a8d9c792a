#pragma once

#include <QHostAddress>
#include <QSslCertificate>
#include <QSslKey>

namespace Tallymere {

// What a count's page is served with: made for it, held in memory alone, and gone with it.
struct Certificate
{
    QSslCertificate certificate;
    QSslKey key;
};

// A certificate for an address, signed by itself and good for two days. RuleError where none can be made.
Certificate certificateFor(const QHostAddress &address);

// The first 8 bytes of its SHA-256 sum, "3F:A0:...", to compare with what a browser shows.
QString fingerprintOf(const QSslCertificate &certificate);

} // namespace Tallymere
