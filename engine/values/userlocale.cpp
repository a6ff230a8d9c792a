#include "engine/values/userlocale.h"

namespace Engine {

namespace {

UserLocale &current()
{
    static UserLocale locale;
    return locale;
}

} // namespace

UserLocale userLocale() { return current(); }

void setUserLocale(const UserLocale &locale) { current() = locale; }

QString groupedCount(qint64 number)
{
    return (current().spellsMonths ? QLocale(QLocale::English) : current().locale).toString(number);
}

QString countText(qint64 count)
{
    return current().groupsCounts ? current().locale.toString(count) : QString::number(count);
}

} // namespace Engine
