// Why something could not be done, as one sentence for the person who asked.
#pragma once

#include <string>

#include <tl/expected.hpp>

namespace quelby {

struct Problem {
    std::string sentence; // names the file, option or value; no final newline
};

template <typename T>
using Result = tl::expected<T, Problem>;

[[nodiscard]] inline tl::unexpected<Problem> problem(std::string sentence) {
    return tl::make_unexpected(Problem{std::move(sentence)});
}

} // namespace quelby
