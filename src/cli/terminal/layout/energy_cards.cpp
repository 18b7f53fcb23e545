#include "cli/terminal/layout/energy_cards.h"

#include <algorithm>
#include <iterator>

#include "cli/terminal/layout/block_charts.h"
#include "cli/terminal/layout/card_frame.h"
#include "cli/terminal/layout/card_parts.h"

namespace quelby::cli {

namespace {

constexpr int healthRows = 4;

Line energyLine(const EnergyRow& row, int columns) {
    constexpr int energyColumns = 9;
    constexpr int shareColumns = 7;
    const int names = std::max((columns - energyColumns - shareColumns) / 2, 1);
    const int bars = std::max(columns - names - energyColumns - shareColumns - 1, 0);
    auto line = joined(fitted({span(row.name)}, names), {blanks(1)});
    line = joined(std::move(line), barLine(row.bar, bars));
    line = joined(std::move(line), spread({}, {span(row.energy)}, energyColumns));
    return joined(std::move(line), spread({}, {span(row.share)}, shareColumns));
}

// Beside each other, or the second below the first where a line has no room for both.
Block besideOrBelow(const Line& left, const Line& right, int columns) {
    const int needed = displayWidth(right);
    if (needed == 0 || displayWidth(left) + 1 + needed <= columns) {
        return {spread(left, right, columns)};
    }
    return {fitted(left, columns), spread({}, right, columns)};
}

CardText text(const EnergyUse& use, int columns) {
    CardText written{.title = titleLine(use)};
    append(written.content, besideOrBelow(choicesLine(use.ranges), {span(use.total)}, columns));
    if (use.placeholder) {
        written.content.push_back({span(*use.placeholder)});
    }
    for (const auto& row : use.rows) {
        written.content.push_back(energyLine(row, columns));
    }
    append(written.content, sentence(use.footnote, columns));
    return written;
}

CardText text(const PastSection& section, int columns) {
    CardText written{.title = titleLine(section)};
    if (section.placeholder) {
        written.content.push_back({span(*section.placeholder)});
    }
    for (const auto& row : section.rows) {
        append(written.content,
               besideOrBelow({span(row.when), blanks(2), span(row.what)}, {span(row.cost)}, columns));
        if (row.warning) {
            append(written.content, sentence(*row.warning, columns, {blanks(2)}));
        }
    }
    return written;
}

CardText text(const AgeingSection& section, int columns) {
    CardText written{.title = titleLine(section)};
    std::vector<double> health;
    std::transform(section.days.begin(), section.days.end(), std::back_inserter(health),
                   [](const HealthPoint& point) { return point.health; });
    if (health.size() > 1) {
        written.content = curve(health, columns, healthRows);
    }
    append(written.content, sentence(section.ageing, columns));
    return written;
}

} // namespace

std::vector<Block> energyCards(const EnergyPanel& panel, int columns) {
    const int content = contentWidth(columns);
    std::vector<Block> cards;
    if (panel.limit) {
        cards.push_back(framed({.title = withGlyph(panel.limit->symbol, bold(panel.limit->text))}, columns));
    }
    cards.push_back(framed(text(panel.use, content), columns));
    for (const auto& section : {panel.sleeps, panel.sessions}) {
        if (section) {
            cards.push_back(framed(text(*section, content), columns));
        }
    }
    if (panel.ageing) {
        cards.push_back(framed(text(*panel.ageing, content), columns));
    }
    return cards;
}

} // namespace quelby::cli
