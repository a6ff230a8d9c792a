#include "printing/jobrefusal.h"

#include <cups/cups.h>

namespace Tallymere::Printing {

// Qt ends a job with one call of CUPS, whose outcome the library keeps for each thread.
QString jobRefusal()
{
    return cupsLastError() <= IPP_STATUS_OK_EVENTS_COMPLETE ? QString() : QString::fromUtf8(cupsLastErrorString());
}

} // namespace Tallymere::Printing
