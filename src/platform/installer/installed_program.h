// What of this program lies on a disk of Linux, for those who remove it.
#pragma once

#include <filesystem>
#include <vector>

namespace quelby {

struct InstalledProgram {
    std::vector<std::filesystem::path> files;   // all of them there
    std::vector<std::filesystem::path> folders; // that hold nothing but some of the files

    bool operator==(const InstalledProgram&) const = default;
};

// By the path of the program `quelby`. Where it was installed (its library is in PREFIX/lib/quelby), this is
// all that belongs to it below the prefix: the two programs, the library, the resources, the icons, and the
// entries by which desktops and shells know it. Otherwise it is what lies beside the program, as the build
// puts it there, and nothing else of that folder.
[[nodiscard]] InstalledProgram installedProgram(const std::filesystem::path& program);

} // namespace quelby
