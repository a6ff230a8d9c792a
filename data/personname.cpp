#include "data/personname.h"

namespace Tallymere {

Engine::Value fullName(const Engine::DataSet &person)
{
    const QString first = person.text(u"FirstName");
    const QString last = person.text(u"LastName");
    return first.isEmpty() || last.isEmpty() ? first + last : first + u' ' + last;
}

} // namespace Tallymere
