#pragma once

#include <QHostAddress>
#include <QList>

namespace Tallymere {

// Under which this machine is reached from others, those of local networks first. None where it is on no network.
QList<QHostAddress> networkAddresses();

} // namespace Tallymere
