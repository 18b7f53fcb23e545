#include "platform/host/temporary_folder.h"

#include <cstdlib>
#include <string>

namespace quelby {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
    std::error_code ignored;
    std::string name = (fs::temp_directory_path(ignored) / "quelby-XXXXXX").string();
    path_ = ::mkdtemp(name.data()) == nullptr ? fs::path("/dev/null") : fs::path(name);
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    if (path_ != "/dev/null") {
        fs::remove_all(path_, ignored);
    }
}

} // namespace quelby
