#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/problem.h"

namespace quelby {

// The files that the program shares with the charge-limit helper, and with its own kind: any of them may
// replace config.json, and the helper status.json and details.json, at any time. So a text may be torn; whoever decodes it
// finds out.
class HelperFolder {
public:
    virtual ~HelperFolder() = default;

    // Nothing where there is no such file, or it cannot be read.
    [[nodiscard]] virtual std::optional<std::string> config() = 0;
    [[nodiscard]] virtual std::optional<std::string> status() = 0;
    [[nodiscard]] virtual std::optional<std::string> details() = 0;

    // Whether config.json is another file than config() saw last, judged by its time and size without opening
    // it. True also after replaceConfig(), and as long as config() has not been called.
    [[nodiscard]] virtual bool configChanged() = 0;

    // The same of details.json and details().
    [[nodiscard]] virtual bool detailsChanged() = 0;

    // Makes the folder where it is missing. The problem names the folder that cannot be written to.
    [[nodiscard]] virtual Result<void> replaceConfig(std::string_view text) = 0;
};

} // namespace quelby
