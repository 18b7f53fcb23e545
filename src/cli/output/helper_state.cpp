#include "cli/output/helper_state.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "base/utf8.h"
#include "base/version.h"
#include "helper/daemon_status.h"
#include "helper/helper_version.h"
#include "helper/json_record.h"

namespace quelby::cli {

namespace {

using Json = nlohmann::ordered_json;

bool isRunning(const HelperState& state) {
    const auto status = state.status ? decodeDaemonStatus(*state.status) : std::nullopt;
    return status ? status->daemonRunning : state.isLoaded;
}

bool isStatus(const std::string& text) {
    return decodeDaemonStatus(text).has_value();
}

// Everybody may write into the helper's folder, so nothing of unbounded depth is taken from there.
bool isObject(const std::string& text) {
    return JsonRecord::read(text).has_value();
}

Json orNull(const std::optional<std::string>& text, bool (*isWhole)(const std::string&)) {
    return text && isWhole(*text) ? Json::parse(*text, nullptr, false) : Json();
}

std::string versionLine(const std::optional<std::string>& details) {
    const auto found = helperVersion(details);
    return fmt::format(
        "it is {}, and not of version {} as this program: quelbyctl helper install updates it\n",
        found ? "of version " + printable(*found) : "of an unknown version", version());
}

} // namespace

std::string helperStateAsText(const HelperState& state) {
    if (!isRunning(state)) {
        return "the helper is not installed\n";
    }
    std::string text = "the helper is installed and running\n";
    if (!state.belongsHere) {
        text += versionLine(state.details);
    }
    const auto details = state.details ? JsonRecord::read(*state.details) : std::nullopt;
    if (const auto explanation = details ? details->text("explanation") : std::nullopt) {
        text += printable(*explanation) + '\n';
    }
    return text;
}

std::string helperStateAsJson(const HelperState& state) {
    const bool running = isRunning(state);
    const Json object{{"installed", running || state.isLoaded},
                      {"running", running},
                      {"status", orNull(state.status, isStatus)},
                      {"details", orNull(state.details, isObject)}};
    return object.dump() + '\n';
}

} // namespace quelby::cli
