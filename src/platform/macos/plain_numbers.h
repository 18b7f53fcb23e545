#pragma once

#include <string>
#include <vector>

namespace quelby {

// The environment ("NAME=value", each) with the one change that a program started in it writes numbers with a
// point, whatever the user's language is; texts stay in that language.
[[nodiscard]] std::vector<std::string> withPlainNumbers(std::vector<std::string> environment);

} // namespace quelby
