#include "base/rounding.h"
#include "care/checks.h"
#include "care/inspection.h"
#include "care/texts.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

bool isSame(double one, double other)
{
    constexpr double noise = 1e-9;
    return std::abs(one - other) <= noise * std::max({1.0, std::abs(one), std::abs(other)});
}

QString quantity(double value) { return Engine::Value(withoutNoise(value)).toText(); }

// Never mended by itself: a host may have brought the stock along without a history, and nobody else knows what is there.
void tell(Inspection &inspection, qint64 item, qint64 location, double stored, double history)
{
    const bool doubted = inspection.isDoubted(item);
    inspection.found(
        {.where = CareTexts::tr("%1 at %2").arg(inspection.itemName(item), inspection.locationName(location)),
         .what = CareTexts::tr("On hand is %1, the history comes to %2.").arg(quantity(stored), quantity(history)),
         .effect = CareTexts::tr("Totals and values count %1 that no document accounts for.")
                       .arg(quantity(stored - history)),
         .remedy = doubted
             ? CareTexts::tr("Count the item once its documents are in order.")
             : CareTexts::tr(
                 "Count the item. What a host has brought along without a history is right as it is.")});
}

} // namespace

void checkBalances(Inspection &inspection)
{
    HistoryTally::Stock left = inspection.history().stock();
    const Engine::StatementPtr row = inspection.store().prepare(
        u"SELECT ItemID, WarehouseID, QtyOnHand FROM IBalance ORDER BY ItemID, WarehouseID"_s);
    while (inspection.next(*row)) {
        const double stored = row->doubleAt(2);
        const double history = left.take({row->intAt(0), row->intAt(1)});
        if (!isSame(stored, history))
            tell(inspection, row->intAt(0), row->intAt(1), stored, history);
    }
    QList<std::pair<qint64, qint64>> places = left.keys();
    std::sort(places.begin(), places.end());
    for (const auto &[item, location] : places)
        if (item != 0 && location != 0 && !isSame(0, left.value({item, location})))
            tell(inspection, item, location, 0, left.value({item, location}));
}

} // namespace Tallymere
