#pragma once

#include "base/ruleerror.h"
#include "engine/values/error.h"

#include <optional>

// The code of the EngineError that the call ends with, or nothing; its text as well.
template <typename Call> std::optional<Engine::ErrorCode> errorOf(Call call, QString *text = nullptr)
{
    try {
        call();
    } catch (const Engine::EngineError &error) {
        if (text)
            *text = error.text();
        return error.code();
    }
    return std::nullopt;
}

// "message -> column" of the rule that the call breaks, "silent -> column" when that goes without words; empty when
// it goes through.
template <typename Call> QString refusalOf(Call call)
{
    try {
        call();
    } catch (const Tallymere::RuleError &error) {
        return error.message() + QStringLiteral(" -> ") + error.column();
    } catch (const Tallymere::SilentAbort &abort) {
        return QStringLiteral("silent -> ") + abort.column();
    }
    return {};
}
