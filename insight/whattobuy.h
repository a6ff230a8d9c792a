#pragma once

#include "engine/values/fieldname.h"
#include "engine/values/money.h"

#include <optional>
#include <QDate>
#include <QString>
#include <vector>

namespace Engine {
class Connection;
class Database;
} // namespace Engine

namespace Tallymere {

constexpr int mostWeeks = 520; // of a plan: ten years

struct BuyingPlan
{
    QDate today;
    int location = 0; // 0: all of them
    int weeks = 8; // over which use is looked at, up to today
    int cover = 2; // weeks that the stock is to last
    bool alsoInStock = false; // also what lasts long enough
};

// An item that has been used. Quantities are in stock units.
struct ItemToBuy
{
    int item = 0;
    QString itemNo;
    QString description;
    int vendor = 0; // of the last receipt that was posted, at any location; 0: none
    QString vendorNo;
    QString vendorName;
    std::optional<Engine::Money> lastCost; // of that receipt, in the home currency
    double usePerWeek = 0;
    double onHand = 0;
    double unposted = 0; // what waiting documents bring, less what they take
    double daysLeft = 0; // that onHand and unposted last, to a tenth; 0 where there is nothing
    double proposed = 0; // whole units, 0 where the stock lasts long enough
};

// How lists, files and reports name what is told of it besides stored fields.
namespace BuyingFields {

using enum Engine::FieldType;

inline constexpr Engine::FieldName<Float> UsePerWeek{u"UsePerWeek"};
inline constexpr Engine::FieldName<Float> Unposted{u"Unposted"};
inline constexpr Engine::FieldName<Float> DaysLeft{u"DaysLeft"};
inline constexpr Engine::FieldName<Float> Proposed{u"Proposed"};
inline constexpr Engine::FieldName<Money> LastCost{u"LastCost"};

} // namespace BuyingFields

// What has been used within the weeks, lasts less long than it is to and is not suspended, by vendor (those without one last), most urgent first. Use is
// what went out by usage or sale; an adjustment is none. All of one moment. Throws RuleError for weeks that are not
// above 0.
std::vector<ItemToBuy> whatToBuy(Engine::Database &database, const BuyingPlan &plan);
// The same within the moment that the connection reads.
std::vector<ItemToBuy> whatToBuy(Engine::Connection &moment, const BuyingPlan &plan);

} // namespace Tallymere
