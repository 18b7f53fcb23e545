#include "ui/presentation/cards/process_card.h"

#include <fmt/format.h>

#include "base/utf8.h"
#include "ui/presentation/text/characters.h"

namespace quelby {

namespace {

constexpr std::size_t longestName = 20; // characters
constexpr std::size_t keptOfLonger = 19;

Color shareColor(double percent) {
    if (percent > 50) {
        return ColorName::red;
    }
    if (percent > 20) {
        return ColorName::orange;
    }
    return percent > 5 ? ColorName::yellow : ColorName::green;
}

ProcessRow processRow(std::size_t index, const ProcessInfo_Energy& proc) {
    return {.position = secondary(fmt::format("{}.", index)),
            .name = primary(shownName(proc.name)),
            .cpu = {fmt::format("{:5.1f}%", proc.cpu), shareColor(proc.cpu)},
            .watts = secondary(fmt::format("~{:.0f}W", proc.estimatedWatts))};
}

} // namespace

std::string shownName(std::string_view name) {
    auto shown = printable(name);
    if (beginning(shown, longestName) != shown) {
        shown = fmt::format("{}~", beginning(shown, keptOfLonger));
    }
    return shown;
}

ProcessCard processCard(const PublishedFields& fields) {
    ProcessCard card{.symbol = {"flame.fill", ColorName::primary}, .title = primary("Top Processes")};
    for (const auto& process : fields.topProcesses.get()) {
        card.rows.push_back(processRow(card.rows.size() + 1, process));
    }
    if (card.rows.empty()) {
        card.placeholder = secondary("Loading...");
    }
    return card;
}

} // namespace quelby
