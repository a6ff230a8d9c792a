#pragma once

#include "base/ruleerror.h"
#include "engine/values/error.h"
#include "tests/support/texts.h"

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

// Whether the call ends with an error of the code, in whose text the part stands.
template <typename Call> testing::AssertionResult fails(Call call, Engine::ErrorCode code, const QString &part)
{
    QString text = QStringLiteral("nothing failed");
    const auto error = errorOf(call, &text);
    return shownAs(error == code && text.contains(part), text) << " of code " << int(error.value_or(code));
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
