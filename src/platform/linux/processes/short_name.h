// A process's short name in full. The kernel cuts a program's name at 15 bytes ("comm"); where the whole of
// it can be found, it is completed. Nothing of a folder or an argument ever becomes part of a name.
#pragma once

#include <string>
#include <string_view>

namespace quelby {

// Whether the kernel may have cut the name. Kernel threads have longer ones, and those are whole.
[[nodiscard]] bool mayBeCut(std::string_view comm);

// The name that a program's file gives to a cut comm: the last part of the path that the "exe" link names. An
// empty text where it does not begin with comm.
[[nodiscard]] std::string_view nameFromExecutable(std::string_view comm, std::string_view path);

// The name that a program's command line gives to a cut comm, with a NUL byte behind each argument: that of
// the program, or of a script, which follows its interpreter and one option of it at most. An empty text
// where neither begins with comm. Programs rewrite their command lines, arguments included, as one text: a
// name ends at a blank and at a slash.
[[nodiscard]] std::string_view nameFromCommandLine(std::string_view comm, std::string_view commandLine);

// Fit for a line of a listing: printable, and "?" where there is nothing to be seen.
[[nodiscard]] std::string listedName(std::string_view name);

} // namespace quelby
