#include <cmath>

#include <nlohmann/json.hpp>

#include "base/utf8.h"
#include "cli/output/helper_state.h"
#include "fuzz/targets/target.h"
#include "helper/daemon_config.h"
#include "helper/daemon_status.h"
#include "limiter/files/limiter_state.h"

namespace quelby::fuzz {

void takeConfig(std::string_view bytes) {
    const auto config = decodeDaemonConfig(bytes);
    if (!config) {
        return;
    }
    const auto text = encode(*config, bytes);
    require(text.has_value() == std::isfinite(config->lastCalibrationTimestamp),
            "a config is encoded where JSON has its numbers");
    require(!text || decodeDaemonConfig(*text) == config, "a config is read as it was written");
}

void takeStatus(std::string_view bytes) {
    static_cast<void>(decodeDaemonStatus(bytes));
    const cli::HelperState state{
        .isLoaded = false, .status = std::string(bytes), .details = std::string(bytes)};
    require(isUtf8(cli::helperStateAsText(state)), "a person is shown text");
    require(nlohmann::json::accept(cli::helperStateAsJson(state)), "a script is given JSON");
}

void takeLimiterState(std::string_view bytes) {
    const auto state = limiter::decodeLimiterState(bytes);
    require(limiter::decodeLimiterState(limiter::encode(state)) == state,
            "a state is read as it was written");
}

} // namespace quelby::fuzz
