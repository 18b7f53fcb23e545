#include "platform/linux/processes/stat_text.h"

#include <charconv>

namespace quelby {

namespace {

// The fields behind the name, which proc(5) counts from 3, the state.
class Fields {
public:
    explicit Fields(std::string_view text) : rest_(text) {}

    bool skip(int count) {
        for (; count > 0; --count) {
            if (rest_.empty() || rest_.front() != ' ') {
                return false;
            }
            rest_.remove_prefix(1);
            const auto end = rest_.find(' ');
            if (end == std::string_view::npos) {
                return false;
            }
            rest_.remove_prefix(end);
        }
        return true;
    }

    // A number at the very end of the text may have lost digits, and is none.
    std::optional<std::uint64_t> number() {
        if (rest_.empty() || rest_.front() != ' ') {
            return std::nullopt;
        }
        std::uint64_t value = 0;
        const auto* const end = rest_.data() + rest_.size();
        const auto [stop, error] = std::from_chars(rest_.data() + 1, end, value);
        if (error != std::errc{} || stop == end || (*stop != ' ' && *stop != '\n')) {
            return std::nullopt;
        }
        rest_.remove_prefix(static_cast<std::size_t>(stop - rest_.data()));
        return value;
    }

private:
    std::string_view rest_;
};

std::optional<CpuCounters> countersIn(Fields fields) {
    constexpr int fromStateToUserTime = 14 - 3;
    constexpr int fromSystemTimeToStartTime = 22 - 16;
    if (!fields.skip(fromStateToUserTime)) {
        return std::nullopt;
    }
    const auto userTicks = fields.number();
    const auto systemTicks = fields.number();
    if (!userTicks || !systemTicks || !fields.skip(fromSystemTimeToStartTime)) {
        return std::nullopt;
    }
    const auto startTicks = fields.number();
    if (!startTicks) {
        return std::nullopt;
    }
    return CpuCounters{*startTicks, *userTicks + *systemTicks};
}

} // namespace

std::optional<StatFields> parseStat(std::string_view text) {
    const auto open = text.find('(');
    // A name may contain brackets of its own; behind it there are none.
    const auto close = text.rfind(')');
    if (open == std::string_view::npos || close == std::string_view::npos || close < open) {
        return std::nullopt;
    }
    const auto counters = countersIn(Fields(text.substr(close + 1)));
    if (!counters) {
        return std::nullopt;
    }
    return StatFields{text.substr(open + 1, close - open - 1), *counters};
}

std::string unescapedComm(std::string_view escapedComm) {
    std::string comm;
    comm.reserve(escapedComm.size());
    for (std::size_t i = 0; i < escapedComm.size(); ++i) {
        const auto pair = escapedComm.substr(i, 2);
        const bool escaped = pair == "\\n" || pair == "\\\\";
        comm += pair == "\\n" ? '\n' : pair[0];
        i += escaped ? 1 : 0;
    }
    return comm;
}

} // namespace quelby
