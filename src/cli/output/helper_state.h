#pragma once

#include <optional>
#include <string>

namespace quelby::cli {

// What is known of the charge-limit helper.
struct HelperState {
    bool isLoaded = false;              // says the service manager
    std::optional<std::string> status;  // the text of its status.json
    std::optional<std::string> details; // the text of its details.json
    bool belongsHere = true;            // is the one that a program of this version comes with
};

// A line that says whether it is there; one for a helper of another version than this program; and the helper's
// own explanation where it runs and gives one.
[[nodiscard]] std::string helperStateAsText(const HelperState& state);

// One object: installed, running, status and details. A file that is not there, or is not whole, is null.
[[nodiscard]] std::string helperStateAsJson(const HelperState& state);

} // namespace quelby::cli
