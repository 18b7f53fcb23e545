#pragma once

#include <optional>
#include <string>

namespace quelby::cli {

// What is known of the charge-limit helper.
struct HelperState {
    bool isLoaded = false;              // says the service manager
    std::optional<std::string> status;  // the text of its status.json
    std::optional<std::string> details; // the text of its details.json
};

// A line that says whether it is there, and its own explanation where it runs and gives one.
[[nodiscard]] std::string helperStateAsText(const HelperState& state);

// One object: installed, running, status and details. A file that is not there, or is not whole, is null.
[[nodiscard]] std::string helperStateAsJson(const HelperState& state);

} // namespace quelby::cli
