// The shortest form of a benchmark shows that it still runs; its figures mean nothing.
#pragma once

#include <string_view>

namespace quelby {

// Whether the program was started as PROGRAM --briefly.
[[nodiscard]] inline bool isBrief(int argumentCount, char** arguments) {
    return argumentCount == 2 && std::string_view(arguments[1]) == "--briefly";
}

} // namespace quelby
