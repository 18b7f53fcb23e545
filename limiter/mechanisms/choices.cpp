#include "limiter/mechanisms/choices.h"

#include <algorithm>
#include <sstream>

namespace quelby::limiter {

bool Choices::offer(std::string_view word) const {
    if (!isList) {
        return !words.empty();
    }
    return std::find(words.begin(), words.end(), word) != words.end();
}

Choices readChoices(std::string_view text) {
    Choices choices;
    std::istringstream stream{std::string(text)};
    for (std::string word; stream >> word;) {
        const bool isActive = word.size() > 2 && word.front() == '[' && word.back() == ']';
        choices.words.push_back(isActive ? word.substr(1, word.size() - 2) : word);
        if (isActive) {
            choices.active = choices.words.back();
        }
    }
    choices.isList = choices.words.size() > 1 || choices.active;
    if (choices.words.size() == 1) {
        choices.active = choices.words.front();
    }
    return choices;
}

std::string asChoice(std::string_view word) {
    std::string choice(word);
    std::replace(choice.begin(), choice.end(), ' ', '_');
    return choice;
}

} // namespace quelby::limiter
