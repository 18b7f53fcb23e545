#include "limiter/records/details.h"

#include <nlohmann/json.hpp>

#include "base/json_value.h"

namespace quelby::limiter {

namespace {

using Json = nlohmann::ordered_json;

} // namespace

std::string encode(const Details& details) {
    Json batteries = Json::array();
    for (const auto& battery : details.batteries) {
        batteries.push_back({{"name", battery.name},
                             {"mechanism", orNull(battery.mechanism)},
                             {"wishedPercent", orNull(battery.wishedPercent)},
                             {"inForcePercent", orNull(battery.inForcePercent)},
                             {"inForceStartPercent", orNull(battery.inForceStartPercent)},
                             {"foundPercent", orNull(battery.foundPercent)},
                             {"foundStartPercent", orNull(battery.foundStartPercent)}});
    }
    const Json whole{{"version", details.version},
                     {"lastUpdate", details.lastUpdate},
                     {"mechanism", orNull(details.mechanism)},
                     {"batteries", batteries},
                     {"rival", orNull(details.rival)},
                     {"lastError", orNull(details.lastError)},
                     {"explanation", details.explanation}};
    return whole.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n';
}

} // namespace quelby::limiter
