#pragma once

#include <QString>

namespace Tallymere::Printing {

// Why the print system did not take the last job that a QPrinter handed to it on this thread; empty when it did. Qt does
// not tell.
QString jobRefusal();

} // namespace Tallymere::Printing
