// Memory that runs out where a test wants it to, of all that this program asks for by C++'s own means and by
// SQLite's. One thread only.
#pragma once

#include <cstddef>

namespace quelby {

enum class Whose { cpps, sqlites, everybodys };
enum class Shortage { once, fromThenOn };

// While it lives, the request of this number finds no memory, counted from 1 on; and, if the shortage lasts,
// all that follow. 0: none does, and they are only counted.
class ScarceMemory {
public:
    ScarceMemory(std::size_t failing, Whose requests, Shortage shortage);
    ScarceMemory(const ScarceMemory&) = delete;
    ScarceMemory& operator=(const ScarceMemory&) = delete;
    ~ScarceMemory();

    [[nodiscard]] std::size_t requests() const;
};

// Pieces of memory that were given out and not yet given back.
[[nodiscard]] std::ptrdiff_t livingPieces();

} // namespace quelby
