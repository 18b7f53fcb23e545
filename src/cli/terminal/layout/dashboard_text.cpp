#include "cli/terminal/layout/dashboard_text.h"

#include "cli/terminal/layout/card_columns.h"
#include "cli/terminal/layout/card_parts.h"
#include "cli/terminal/layout/dashboard_cards.h"

namespace quelby::cli {

namespace {

Block below(const Line& header, const Block& cards) {
    Block block{header};
    append(block, cards);
    return block;
}

} // namespace

Line headerLine(const Header& header, int columns) {
    const auto layout = cardColumns(columns);
    const int width = layout.count * layout.width + layout.count - 1;
    const Line clock = header.clock ? Line{span(*header.clock), blanks(1)} : Line{};
    auto line = joined({blanks(layout.margin + 1)}, withGlyph(header.symbol, bold(header.title)));
    return spread(line, clock, layout.margin + width);
}

Block dashboardText(const Dashboard& dashboard, int columns) {
    const auto layout = cardColumns(columns);
    return below(headerLine(dashboard.header, columns),
                 inColumns(dashboardCards(dashboard, layout.width), layout));
}

Block settingsText(const SettingsPanel& panel, int columns) {
    const auto layout = cardColumns(columns);
    auto block =
        below(headerLine(panel.header, columns), inColumns(settingsCards(panel, layout.width), layout));
    block.push_back({blanks(layout.margin + 1), span(panel.version)});
    return block;
}

} // namespace quelby::cli
