#include "cli/terminal/layout/dashboard_cards.h"

#include <algorithm>
#include <iterator>

#include "cli/terminal/layout/big_figures.h"
#include "cli/terminal/layout/block_charts.h"
#include "cli/terminal/layout/card_frame.h"
#include "cli/terminal/layout/card_parts.h"
#include "cli/terminal/layout/display_width.h"
#include "ui/presentation/charts/history_chart.h"
#include "ui/presentation/text/words.h"

namespace quelby::cli {

namespace {

constexpr int trendRows = 3;
constexpr int historyRows = 5;

CardText text(const ChargeLimitCard& card, int columns) {
    CardText written{.title = titleLine(card), .atTheRight = switchLine(card.enabled)};
    written.content = sentence(card.subtitle, columns);
    if (card.offer) {
        append(written.content, sentence(card.offer->explanation, columns));
        written.content.push_back(
            withGlyph({card.offer->installButton.symbol.name, ColorName::accent},
                      {card.offer->installButton.text.text, {.color = ColorName::accent, .bold = true}}));
    }
    if (card.stopLevel) {
        const auto& level = *card.stopLevel;
        const double fraction =
            (level.slider.value - level.slider.from) / (level.slider.to - level.slider.from);
        written.content.push_back({span(level.stopAt[0]), blanks(1), bold(level.stopAt[1])});
        written.content.push_back(sliderLine(fraction, level.stopAt[1].color, columns));
        written.content.push_back(spreadEvenly(level.scale, columns));
        written.content.push_back(statusLine(level.status.dot, level.status.text));
    }
    return written;
}

CardText text(const PowerBadge& badge) {
    CardText written{.title = {{std::string(words::power), {.bold = true}}}};
    const auto sign = badge.sign ? badge.sign->text : std::string();
    const auto figures = bigFigures(sign + badge.figure.text);
    for (const auto& row : figures) {
        written.content.push_back({{row, {.color = badge.figure.color, .bold = true}}});
    }
    written.content.back().push_back(blanks(1));
    written.content.back().push_back(span(badge.unit));
    written.content.push_back(withGlyph(badge.symbol, span(badge.caption)));
    Line extra;
    for (const auto& label : badge.extra) {
        extra = joined(std::move(extra), withGlyph(label.symbol, span(label.text)));
        extra.push_back(blanks(3));
    }
    if (!extra.empty()) {
        written.content.push_back(extra);
    }
    return written;
}

CardText text(const BatteryCard& card, int columns) {
    constexpr int levelColumns = 5;
    auto level = joined(fitted({bold(card.level)}, levelColumns), barLine(card.bar, columns - levelColumns));
    return {.title = titleLine(card),
            .content = {level,
                        spread(withGlyph(card.time.symbol, span(card.time.text)), {span(card.rate)}, columns),
                        withGlyph(card.health.symbol, span(card.health.text))}};
}

Line componentLine(const ComponentRow& row, int columns) {
    constexpr int labelColumns = 9;
    constexpr int figureColumns = 6;
    constexpr int detailColumns = 10;
    const int bar = std::max(columns - labelColumns - figureColumns - detailColumns, 0);
    auto line = joined(fitted({span(row.label)}, labelColumns), barLine(row.bar, bar));
    line = joined(std::move(line), spread({}, {span(row.figure)}, figureColumns));
    return row.detail ? joined(std::move(line), spread({}, {span(*row.detail)}, detailColumns)) : line;
}

CardText text(const ComponentCard& card, int columns) {
    CardText written{.title = {bold(card.title)}};
    for (const auto& row : card.rows) {
        written.content.push_back(componentLine(row, columns));
    }
    written.content.push_back(componentLine(card.total, columns));
    return written;
}

CardText text(const ProcessCard& card, int columns) {
    constexpr int positionColumns = 3;
    constexpr int cpuColumns = 8;
    constexpr int wattsColumns = 6;
    CardText written{.title = titleLine(card)};
    for (const auto& row : card.rows) {
        auto line = joined(fitted({span(row.position)}, positionColumns),
                           fitted({span(row.name)}, columns - positionColumns - cpuColumns - wattsColumns));
        line = joined(std::move(line), spread({}, {span(row.cpu)}, cpuColumns));
        written.content.push_back(joined(std::move(line), spread({}, {span(row.watts)}, wattsColumns)));
    }
    if (card.placeholder) {
        written.content.push_back({span(*card.placeholder)});
    }
    return written;
}

CardText text(const TrendCard& card, int columns) {
    CardText written{.title = titleLine(card), .atTheRight = {span(card.now)}};
    written.content = curve(card.samples, columns, trendRows);
    written.content.push_back(spreadEvenly({card.min, card.avg, card.max}, columns));
    return written;
}

Block historyBlock(const HistoryCard& card, int columns) {
    std::vector<double> watts;
    std::transform(card.points.begin(), card.points.end(), std::back_inserter(watts),
                   [](const HistoryDataPoint& point) { return point.watts; });
    const auto labels = historyAxisLabels(card.points);
    const int room = std::max(displayWidth(labels.maximum), displayWidth(labels.minimum)) + 1;
    auto block = curve(watts, columns - room, historyRows);
    block.front().push_back(blanks(1));
    block.front().push_back(span(secondary(labels.maximum)));
    block.back().push_back(blanks(1));
    block.back().push_back(span(secondary(labels.minimum)));
    return block;
}

CardText text(const HistoryCard& card, int columns) {
    CardText written{.title = titleLine(card), .atTheRight = {span(card.today)}};
    written.content.push_back(choicesLine(card.ranges));
    if (card.placeholder) {
        written.content.push_back(withGlyph(card.placeholder->symbol, span(card.placeholder->text)));
    } else {
        append(written.content, historyBlock(card, columns));
    }
    Line badges;
    for (const auto& badge : card.badges) {
        badges = joined(std::move(badges), {span(badge.label), blanks(1), bold(badge.value), blanks(3)});
    }
    written.content.push_back(badges);
    return written;
}

CardText text(const EfficiencyCard& card, int columns) {
    CardText written{.title = titleLine(card)};
    written.content.push_back({bold(card.score),
                               span(card.outOf),
                               blanks(2),
                               {card.stars, {.color = card.score.color}},
                               blanks(2),
                               span(card.rating)});
    append(written.content, sentence(card.advice.text, columns, withGlyph(card.advice.symbol, {})));
    return written;
}

// The columns that the widest of the texts takes.
template <typename TextOf>
int widest(const std::vector<DetailRow>& rows, TextOf textOf) {
    int columns = 0;
    for (const auto& row : rows) {
        columns = std::max(columns, displayWidth(textOf(row)));
    }
    return columns;
}

CardText text(const BatteryDetailsCard& card, int columns) {
    const int values = widest(card.rows, [](const DetailRow& row) { return row.value.text; });
    const int notes = widest(card.rows, [](const DetailRow& row) { return row.note ? row.note->text : ""; });
    CardText written{.title = titleLine(card)};
    for (const auto& row : card.rows) {
        auto line = fitted(withGlyph(row.symbol, span(row.label)), columns - values - notes - 2);
        line.push_back(blanks(1));
        line = joined(std::move(line), spread({}, {span(row.value)}, values));
        if (row.note) {
            line = joined(std::move(line), {blanks(1), span(*row.note)});
        }
        written.content.push_back(line);
    }
    return written;
}

} // namespace

std::vector<Block> dashboardCards(const Dashboard& dashboard, int columns) {
    const int content = contentWidth(columns);
    std::vector<Block> cards;
    const auto add = [&](const CardText& card) { cards.push_back(framed(card, columns)); };
    if (dashboard.chargeLimit) {
        add(text(*dashboard.chargeLimit, content));
    }
    add(text(dashboard.powerBadge));
    if (dashboard.battery) {
        add(text(*dashboard.battery, content));
    }
    add(text(dashboard.components, content));
    add(text(dashboard.processes, content));
    if (dashboard.trend) {
        add(text(*dashboard.trend, content));
    }
    add(text(dashboard.history, content));
    add(text(dashboard.efficiency, content));
    if (dashboard.details) {
        add(text(*dashboard.details, content));
    }
    return cards;
}

} // namespace quelby::cli
