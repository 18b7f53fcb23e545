// Attributes that list what they can be set to, with the active word in brackets: "Fast [Standard] Custom".
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quelby::limiter {

struct Choices {
    std::vector<std::string> words;    // blanks within a word are underscores
    std::optional<std::string> active; // one of them

    // Whether the attribute can be set to the word. A lone word without brackets is no list, and leaves open
    // what else there is.
    [[nodiscard]] bool offer(std::string_view word) const;

    bool isList = false;
};

[[nodiscard]] Choices readChoices(std::string_view text);

// The attribute of the older kind has no list, and its one word may have blanks: "Long Life".
[[nodiscard]] std::string asChoice(std::string_view word);

} // namespace quelby::limiter
