#include "cli/arguments/nearest_word.h"

#include <algorithm>

namespace quelby::cli {

// Row by row through the table of the distances between the beginnings of the one word and those of the other.
std::size_t distance(std::string_view one, std::string_view other) {
    using Row = std::vector<std::size_t>;
    Row beforeLast(other.size() + 1);
    Row last(other.size() + 1);
    Row row(other.size() + 1);
    for (std::size_t j = 0; j <= other.size(); ++j) {
        row[j] = j;
    }
    for (std::size_t i = 1; i <= one.size(); ++i) {
        beforeLast.swap(last);
        last.swap(row);
        row[0] = i;
        for (std::size_t j = 1; j <= other.size(); ++j) {
            const std::size_t replaced = last[j - 1] + (one[i - 1] == other[j - 1] ? 0 : 1);
            row[j] = std::min({replaced, last[j] + 1, row[j - 1] + 1});
            const bool swapped = i > 1 && j > 1 && one[i - 1] == other[j - 2] && one[i - 2] == other[j - 1];
            if (swapped) {
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
            }
        }
    }
    return row[other.size()];
}

std::string_view nearestWord(std::string_view wrong, const std::vector<std::string_view>& words) {
    const auto completed = std::find_if(words.begin(), words.end(),
                                        [&](std::string_view word) { return word.starts_with(wrong); });
    if (!wrong.empty() && completed != words.end()) {
        return *completed;
    }
    return *std::min_element(words.begin(), words.end(),
                             [&](std::string_view nearer, std::string_view farther) {
                                 return distance(wrong, nearer) < distance(wrong, farther);
                             });
}

} // namespace quelby::cli
