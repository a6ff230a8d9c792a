#include "data/personname.h"

#include "data/fields.h"

namespace Tallymere {

Engine::Value fullName(const Engine::DataSet &person)
{
    const QString first = person.text(Fields::FirstName);
    const QString last = person.text(Fields::LastName);
    return first.isEmpty() || last.isEmpty() ? first + last : first + u' ' + last;
}

} // namespace Tallymere
