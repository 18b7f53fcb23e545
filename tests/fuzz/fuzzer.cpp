// The target that QUELBY_FUZZ_TARGET names, under libFuzzer.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include <QGuiApplication>

#include "fuzz/targets/target.h"

namespace {

const quelby::fuzz::Target* wanted() {
    const char* const name = std::getenv("QUELBY_FUZZ_TARGET");
    const auto* const found = std::find_if(
        std::begin(quelby::fuzz::targets), std::end(quelby::fuzz::targets),
        [&](const auto& target) { return name != nullptr && std::string_view(target.name) == name; });
    return found == std::end(quelby::fuzz::targets) ? nullptr : found;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    static const QGuiApplication application(*argc, *argv); // for pictures and the user's files
    quelby::fuzz::require(wanted() != nullptr, "QUELBY_FUZZ_TARGET names no target");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto* const target = wanted();
    target->take({reinterpret_cast<const char*>(data), size});
    return 0;
}
