#pragma once

#include <string>
#include <vector>

namespace quelby {

// Every statement that any connection of this process begins while the log exists, with the values that are
// bound in their places. One log at a time.
class StatementLog {
public:
    StatementLog();
    StatementLog(const StatementLog&) = delete;
    StatementLog& operator=(const StatementLog&) = delete;
    ~StatementLog();

    // Those since the last call.
    [[nodiscard]] std::vector<std::string> take();
};

} // namespace quelby
