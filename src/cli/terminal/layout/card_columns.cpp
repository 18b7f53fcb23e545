#include "cli/terminal/layout/card_columns.h"

#include <algorithm>

namespace quelby::cli {

namespace {

constexpr int narrowestCard = 46;
constexpr int widestCard = 72;
constexpr int mostColumns = 3;
constexpr int gap = 1;

} // namespace

CardColumns cardColumns(int terminalWidth) {
    const int count = std::clamp((terminalWidth + gap) / (narrowestCard + gap), 1, mostColumns);
    const int room = (terminalWidth - (count - 1) * gap) / count;
    const int width = std::min(room, widestCard);
    return {count, width, (terminalWidth - count * width - (count - 1) * gap) / 2};
}

Block inColumns(const std::vector<Block>& cards, const CardColumns& columns) {
    std::vector<Block> filled(static_cast<std::size_t>(columns.count));
    for (const auto& card : cards) {
        auto& shortest = *std::min_element(
            filled.begin(), filled.end(), [](const Block& a, const Block& b) { return a.size() < b.size(); });
        shortest.insert(shortest.end(), card.begin(), card.end());
    }
    std::size_t rows = 0;
    for (const auto& column : filled) {
        rows = std::max(rows, column.size());
    }
    Block block(rows, Line{blanks(columns.margin)});
    for (std::size_t row = 0; row < rows; ++row) {
        for (std::size_t i = 0; i < filled.size(); ++i) {
            const auto& column = filled[i];
            auto& line = block[row];
            line.push_back(blanks(i == 0 ? 0 : gap));
            line = joined(std::move(line), fitted(row < column.size() ? column[row] : Line{}, columns.width));
        }
    }
    return block;
}

} // namespace quelby::cli
