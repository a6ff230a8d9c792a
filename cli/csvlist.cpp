#include "cli/csvlist.h"

namespace Tallymere {

void filterBy(Engine::DataSet &rows, const QString &expression)
{
    if (expression.isEmpty())
        return;
    rows.setFilter(expression);
    rows.setFiltered(true);
}

} // namespace Tallymere
