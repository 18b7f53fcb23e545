#include "platform/posix/replace_file.h"

#include <cstdlib>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/posix/file_descriptor.h"
#include "platform/posix/write_whole.h"

namespace quelby {

bool replaceFile(const std::filesystem::path& file, std::string_view content, mode_t mode) {
    std::string neighbour = file.string() + ".XXXXXX";
    const FileDescriptor opened(::mkostemp(neighbour.data(), O_CLOEXEC));
    if (!opened.isOpen()) {
        return false;
    }
    static_cast<void>(::fchmod(opened.number(), mode)); // some file systems have no modes
    // Flushed before it gets the name: after a loss of power there is the old text or the new one as well.
    const bool replaced = writeWhole(opened.number(), content) && ::fsync(opened.number()) == 0 &&
                          ::rename(neighbour.c_str(), file.c_str()) == 0;
    if (!replaced) {
        ::unlink(neighbour.c_str());
    }
    return replaced;
}

} // namespace quelby
