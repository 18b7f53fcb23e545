#pragma once

#include "support/program.h"

namespace quelby {

inline std::vector<std::string> quelbyctlWords(std::vector<std::string> words) {
    words.insert(words.begin(), QUELBY_BINARY_DIR "/quelbyctl");
    return words;
}

// The tests know the times of day by UTC, and no preference of whoever runs them matters.
inline Environment plainEnvironment() {
    return {{"TZ", "UTC0"}, {"XDG_CONFIG_HOME", "/nonexistent"}, {"LC_ALL", "C.UTF-8"}};
}

[[nodiscard]] inline ProgramResult quelbyctl(const std::vector<std::string>& words,
                                             Environment environment = {}) {
    environment.merge(plainEnvironment());
    return runProgram(quelbyctlWords(words), environment);
}

} // namespace quelby
