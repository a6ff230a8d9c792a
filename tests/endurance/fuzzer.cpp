// What the fuzzer drives: FUZZ_TARGET names the target.

#include "base/named.h"
#include "tests/endurance/targets.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const FuzzTarget *const target =
        Tallymere::findNamed(fuzzTargets(), qEnvironmentVariable("FUZZ_TARGET"));
    if (!target)
        qFatal("FUZZ_TARGET names no target");
    target->take(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    return 0;
}
