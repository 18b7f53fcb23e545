#pragma once

#include <string>
#include <vector>

namespace quelby {

// Starts a program that has nothing more to do with this one: it is nobody's child to be waited for, in a
// session of its own, reads nothing, prints nowhere, and has none of this program's files open. The first
// word is its path. Where it cannot be started, nothing happens.
void startDetached(const std::vector<std::string>& words);

} // namespace quelby
