#include "cli/terminal/layout/card_frame.h"

#include <algorithm>

namespace quelby::cli {

namespace {

constexpr int frameWidth = 4; // an edge and a blank at each side

const Style edgeStyle{.color = ColorName::secondary};

Span edge(const char* cell, int count = 1) {
    std::string cells;
    for (int i = 0; i < count; ++i) {
        cells += cell;
    }
    return {cells, edgeStyle};
}

Line upperEdge(const CardText& card, int columns) {
    const int room = std::max(contentWidth(columns) - 2, 0); // an edge at each side of the title
    const int title = std::min(displayWidth(card.title), room);
    const int right = displayWidth(card.atTheRight);
    const bool hasRight = right > 0 && title + right + 3 <= room;
    const int rest = room - title - (hasRight ? right + 2 : 0);
    Line line = joined({edge("╭─"), blanks(1)}, fitted(card.title, title));
    line = joined(std::move(line), {blanks(1), edge("─", rest)});
    if (hasRight) {
        line = joined(joined(std::move(line), {blanks(1)}), card.atTheRight);
        line.push_back(blanks(1));
    }
    line.push_back(edge("─╮"));
    return line;
}

} // namespace

int contentWidth(int columns) {
    return std::max(columns - frameWidth, 0);
}

Block framed(const CardText& card, int columns) {
    Block block{upperEdge(card, columns)};
    for (const auto& line : card.content) {
        auto row = joined({edge("│"), blanks(1)}, fitted(line, contentWidth(columns)));
        block.push_back(joined(std::move(row), {blanks(1), edge("│")}));
    }
    block.push_back({edge("╰"), edge("─", std::max(columns - 2, 0)), edge("╯")});
    return block;
}

} // namespace quelby::cli
