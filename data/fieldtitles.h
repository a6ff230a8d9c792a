#pragma once

#include <QString>

namespace Tallymere {

// What users call a field where no list or form shows it: "Standard Cost" for "StandardCost". Empty for what only the system
// knows.
QString fieldTitle(const QString &field);

} // namespace Tallymere
