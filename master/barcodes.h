#pragma once

#include "engine/store/database.h"

#include <optional>
#include <QHash>
#include <QStringList>

// Further codes that stand for an item, as makers and vendors print them on what they deliver. A code stands for one item,
// an item may have several; its number needs none. Codes differ by letter case. A product code of 12 digits (UPC-A) is the
// same as that of 13 with a 0 in front (EAN-13).

namespace Tallymere {

constexpr int barcodeSize = 80; // letters

// What a code that was scanned or typed stands for: the item with that number, else the one with that barcode. None where
// neither is there.
std::optional<int> itemOfCode(Engine::Database &database, const QString &code);
// The same with the number exactly as it stands, by indexes alone.
std::optional<int> itemOfExactCode(Engine::Database &database, const QString &code);
// The description of that; empty for none.
QString nameOfCode(Engine::Database &database, const QString &code);
// By a barcode alone.
std::optional<int> itemOfBarcode(Engine::Database &database, const QString &code);

QStringList barcodesOf(Engine::Database &database, int itemId); // in the order in which they were added
QHash<qint64, QStringList> barcodesOfAll(Engine::Database &database); // by item, those without any left out

// RuleError where the code is empty, too long, the number of another item or a code of one. One that the item has already
// stays as it is.
void addBarcode(Engine::Database &database, int itemId, const QString &code);
void removeBarcode(Engine::Database &database, int itemId, const QString &code);

} // namespace Tallymere
