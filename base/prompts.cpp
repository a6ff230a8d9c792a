#include "base/prompts.h"

#include "base/texts.h"

namespace Tallymere {

QString caption(Question question)
{
    return question == Question::Warning ? BaseTexts::tr("Warning") : BaseTexts::tr("Confirm");
}

} // namespace Tallymere
