#pragma once

#include <QString>
#include <QStringList>

namespace Tallymere {

// What users call a field where no list or form shows it: "Standard Cost" for "StandardCost". Empty for what only the system
// knows.
QString fieldTitle(const QString &field);

// What a column with it may be called besides in a spreadsheet: "pieces" for a quantity.
QStringList fieldWords(const QString &field);

} // namespace Tallymere
