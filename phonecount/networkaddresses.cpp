#include "phonecount/networkaddresses.h"

#include <algorithm>
#include <QNetworkInterface>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

bool isLocal(const QHostAddress &address)
{
    static const QList<QPair<QHostAddress, int>> local = {QHostAddress::parseSubnet(u"10.0.0.0/8"_s),
                                                          QHostAddress::parseSubnet(u"172.16.0.0/12"_s),
                                                          QHostAddress::parseSubnet(u"192.168.0.0/16"_s)};
    return address.isUniqueLocalUnicast()
        || std::ranges::any_of(local, [&](const auto &net) { return address.isInSubnet(net); });
}

// Addresses of IPv4 are shorter, so they make a picture that is easier to scan.
int rank(const QHostAddress &address)
{
    const bool isLong = address.protocol() != QAbstractSocket::IPv4Protocol;
    return (isLocal(address) ? 0 : 2) + (isLong ? 1 : 0);
}

bool isReached(const QNetworkInterface &network)
{
    return network.flags().testFlags(QNetworkInterface::IsUp | QNetworkInterface::IsRunning)
        && !network.flags().testFlag(QNetworkInterface::IsLoopBack);
}

} // namespace

QList<QHostAddress> networkAddresses()
{
    QList<QHostAddress> found;
    const QList<QNetworkInterface> networks = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface &network : networks) {
        if (!isReached(network))
            continue;
        const QList<QNetworkAddressEntry> entries = network.addressEntries();
        for (const QNetworkAddressEntry &entry : entries) {
            if (!entry.ip().isLoopback() && !entry.ip().isLinkLocal())
                found << entry.ip();
        }
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const auto &one, const auto &other) { return rank(one) < rank(other); });
    return found;
}

} // namespace Tallymere
