#include "base/prompts.h"

#include <QCoreApplication>

namespace Tallymere {

QString caption(Question question)
{
    return question == Question::Warning ? QCoreApplication::translate("Prompts", "Warning")
                                         : QCoreApplication::translate("Prompts", "Confirm");
}

} // namespace Tallymere
