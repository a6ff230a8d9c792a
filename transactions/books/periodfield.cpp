#include "transactions/books/periodfield.h"

#include "data/fields.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

void addPeriod(Engine::DataSet &set)
{
    set.addCalculated(
        Fields::Periodppyyyy.sized(8),
        [](const Engine::DataSet &row) {
            return Engine::Value(row.value(Fields::GLPeriod).toText() + u'/' + row.value(Fields::GLYear).toText());
        },
        u"GLYear;GLPeriod"_s);
}

} // namespace Tallymere
