// The program's parts in libraries of their own, each loaded when it is first wanted: until then the program is little
// more than its monitor.
#pragma once

#include <string>

#include "base/problem.h"

namespace quelby::app {

// Each part offers two functions of C.
struct ProgramLibrary {
    std::string file;            // its name
    std::string meaning;         // which library it is, in what a person reads: "the library with ..."
    const char* versionFunction; // takes nothing, and gives a text that stays
    const char* function;        // what the part is there for
};

// Gives that function, of the library that lies beside the program where it was built, below lib where it was installed.
// It stays loaded. Nothing of another version is used: program and library have their classes in common. The problem is
// that it is of another one, missing, or lacks something itself.
[[nodiscard]] Result<void*> functionFrom(const ProgramLibrary& library);

} // namespace quelby::app
