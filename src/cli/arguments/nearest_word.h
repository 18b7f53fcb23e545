#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace quelby::cli {

// How many letters (bytes) one has to insert, to leave out, to replace or to swap with their neighbour to make
// the one word of the other; no letter is touched twice.
[[nodiscard]] std::size_t distance(std::string_view one, std::string_view other);

// What somebody probably meant: the first of the words that begin with the wrong one, or else the one at the
// least distance, the first of several. There is at least one word.
[[nodiscard]] std::string_view nearestWord(std::string_view wrong,
                                           const std::vector<std::string_view>& words);

} // namespace quelby::cli
