#pragma once

#include <filesystem>
#include <string_view>

#include <sys/types.h>

namespace quelby {

// Puts a new file with this content and mode (where the file system has modes) in the place of the named one,
// or makes it; whoever reads gets the old text or the new one, never a part. False where that cannot be done;
// the old file is then as it was.
[[nodiscard]] bool replaceFile(const std::filesystem::path& file, std::string_view content, mode_t mode);

} // namespace quelby
