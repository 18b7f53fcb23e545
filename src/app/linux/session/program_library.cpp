#include "app/linux/session/program_library.h"

#include <filesystem>

#include <dlfcn.h>
#include <fmt/format.h>

#include "base/version.h"

namespace quelby::app {

namespace {

namespace fs = std::filesystem;

using VersionOf = const char* (*)();

// Also of a program that was replaced or removed since it began.
fs::path programFolder() {
    std::error_code ignored;
    return fs::read_symlink("/proc/self/exe", ignored).parent_path();
}

fs::path findFile(const std::string& name) {
    std::error_code unreadable;
    const auto folder = programFolder();
    const auto beside = folder / name;
    return fs::exists(beside, unreadable) ? beside : folder.parent_path() / "lib" / "quelby" / name;
}

} // namespace

Result<void*> functionFrom(const ProgramLibrary& library) {
    const auto file = findFile(library.file);
    std::error_code unreadable;
    if (!fs::exists(file, unreadable)) {
        return problem(library.meaning + " is missing");
    }
    void* const handle = ::dlopen(file.c_str(), RTLD_LAZY | RTLD_LOCAL);
    if (handle == nullptr) {
        return problem(fmt::format("{} cannot be loaded: {}", library.meaning, ::dlerror()));
    }
    const auto versionOf = reinterpret_cast<VersionOf>(::dlsym(handle, library.versionFunction));
    void* const function = ::dlsym(handle, library.function);
    if (versionOf == nullptr || function == nullptr) {
        return problem(library.meaning + " is damaged");
    }
    if (versionOf() != version()) {
        return problem(
            fmt::format("{} is of version {} and this program of {}; they have to be installed together",
                        library.meaning, versionOf(), version()));
    }
    return function;
}

} // namespace quelby::app
