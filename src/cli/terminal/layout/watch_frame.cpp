#include "cli/terminal/layout/watch_frame.h"

#include <algorithm>
#include <array>
#include <utility>

#include "cli/terminal/layout/card_columns.h"
#include "cli/terminal/layout/card_frame.h"
#include "cli/terminal/layout/dashboard_cards.h"
#include "cli/terminal/layout/dashboard_text.h"
#include "cli/terminal/layout/energy_cards.h"

namespace quelby::cli {

namespace {

constexpr int fewestRowsForFooter = 5;

const Style quiet{.color = ColorName::secondary};

Block helpCard(int columns) {
    constexpr int keyColumns = 14;
    constexpr std::array keys{std::pair("1 2 3 4", "history of 30 minutes, 1 hour, 24 hours, 7 days"),
                              std::pair("1 to 5", "energy of today, 24 hours, 7 days, 30 days, on battery"),
                              std::pair("e", "where the energy went, and back"),
                              std::pair("↑ ↓", "scroll by a row"),
                              std::pair("PgUp PgDn", "scroll by a page"),
                              std::pair("Home End", "to the beginning, to the end"),
                              std::pair("?", "show or hide this help"),
                              std::pair("q", "quit")};
    CardText card{.title = {{"Keys", {.bold = true}}}};
    for (const auto& [key, meaning] : keys) {
        card.content.push_back(joined(fitted({{key, {.bold = true}}}, keyColumns), {{meaning, {}}}));
    }
    return framed(card, columns);
}

Line footerLine(const WatchView& view, int furthestScroll, bool energy) {
    const auto layout = cardColumns(view.size.columns);
    Line keys{blanks(layout.margin + 1)};
    for (const auto& [key, meaning] :
         {std::pair("q", " quit   "), std::pair(energy ? "1-5" : "1-4", " range   "),
          std::pair("e", energy ? " dashboard   " : " energy   "), std::pair("?", " help")}) {
        keys.push_back({key, {.bold = true}});
        keys.push_back({meaning, quiet});
    }
    const bool more = view.scrolledBy < furthestScroll;
    return fitted(spread(keys, {{more ? "↓ more " : "", quiet}}, view.size.columns - layout.margin),
                  view.size.columns);
}

std::vector<Block> cards(const Dashboard& dashboard, const WatchView& view,
                         const std::optional<EnergyPanel>& energy, int columns) {
    if (view.help) {
        return {helpCard(columns)};
    }
    return energy ? energyCards(*energy, columns) : dashboardCards(dashboard, columns);
}

} // namespace

WatchFrame watchFrame(const Dashboard& dashboard, const WatchView& view,
                      const std::optional<EnergyPanel>& energy) {
    const auto layout = cardColumns(view.size.columns);
    const auto content = inColumns(cards(dashboard, view, energy, layout.width), layout);
    const bool hasFooter = view.size.rows >= fewestRowsForFooter;
    const int page = std::max(view.size.rows - (hasFooter ? 2 : 1), 0);
    WatchFrame frame{.furthestScroll = std::max(static_cast<int>(content.size()) - page, 0), .page = page};
    const int scrolledBy = std::clamp(view.scrolledBy, 0, frame.furthestScroll);

    frame.lines.push_back(fitted(headerLine(dashboard.header, view.size.columns), view.size.columns));
    for (int row = 0; row < page; ++row) {
        const auto source = static_cast<std::size_t>(row) + static_cast<std::size_t>(scrolledBy);
        frame.lines.push_back(fitted(source < content.size() ? content[source] : Line{}, view.size.columns));
    }
    if (hasFooter) {
        frame.lines.push_back(
            footerLine({view.size, scrolledBy, view.help}, frame.furthestScroll, energy.has_value()));
    }
    return frame;
}

} // namespace quelby::cli
