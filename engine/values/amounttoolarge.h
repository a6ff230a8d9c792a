#pragma once

#include "engine/values/error.h"

namespace Engine {

// A calculation has left the range of Money. Rules that know what was calculated say so in its place; where none does,
// the text stands as it is.
class AmountTooLarge final : public EngineError
{
public:
    AmountTooLarge()
        : EngineError(ErrorCode::BadValue, Texts::tr("An amount of money is too large."))
    {
    }
};

} // namespace Engine
