#pragma once

namespace quelby {

// What brings programs to a computer as packages, and takes them away again. Files that came with a package
// are the manager's to remove.
enum class PackageManager { apt, rpm, pacman };

} // namespace quelby
