#include "transactions/documentkind.h"

#include "engine/dataset.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Tallymere {

QString DocumentKind::titleOf(const Engine::DataSet &header) const { return title.arg(header.text(shownField())); }

FilterBox DocumentKind::locationBox()
{
    return {.name = u"cboWarehouse"_s,
            .label = QCoreApplication::translate("DocumentKind", "&Location:"),
            .list = u"Warehse"_s};
}

} // namespace Tallymere
