#pragma once

#include <QCoreApplication>

namespace Tallymere {

// The context in which this room's texts are found: BooksTexts::tr("...").
class BooksTexts
{
    Q_DECLARE_TR_FUNCTIONS(Books)
};

} // namespace Tallymere
