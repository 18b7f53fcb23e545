#include "platform/installer/installed_program.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace quelby {

namespace {

namespace fs = std::filesystem;

// What lies beside each other where it was built. The libraries are elsewhere once they are installed.
constexpr std::array<std::string_view, 2> programs{"quelby", "quelbyctl"};
constexpr std::array<std::string_view, 2> libraries{"quelby-desktop.so", "quelby-dashboard.so"};

// What our files are called, up to what says of which kind they are.
constexpr std::array<std::string_view, 7> ourNames{
    "quelby",           "quelbyctl",         "quelby-recorder",
    "quelby-recording", "com.quelby.Quelby", "com.quelby.limiter",
    "pwr_limiter"};

// The program's own folders below the prefix, each before the one that holds it, and those that it shares with other programs.
constexpr std::array<std::string_view, 4> ownFolders{"lib/quelby", "libexec/quelby",
                                                     "share/quelby/recordings", "share/quelby"};
constexpr std::array<std::string_view, 13> sharedFolders{"share/applications",
                                                         "share/metainfo",
                                                         "share/dbus-1/services",
                                                         "share/pixmaps",
                                                         "share/polkit-1/actions",
                                                         "share/man/man1",
                                                         "share/man/man5",
                                                         "share/man/man8",
                                                         "share/bash-completion/completions",
                                                         "share/zsh/site-functions",
                                                         "share/zsh/vendor-completions",
                                                         "share/fish/vendor_completions.d",
                                                         "lib/systemd/user"};
constexpr std::string_view iconTheme = "share/icons/hicolor"; // with a folder for each size

bool isThere(const fs::path& file) {
    std::error_code failure;
    const auto status = fs::symlink_status(file, failure);
    return fs::is_regular_file(status) || fs::is_symlink(status);
}

// Not by way of a link, behind which are other programs' files.
bool isOwnFolder(const fs::path& path) {
    std::error_code failure;
    return fs::is_directory(fs::symlink_status(path, failure));
}

std::vector<fs::path> entriesOf(const fs::path& folder) {
    std::error_code failure;
    std::vector<fs::path> entries;
    for (auto entry = fs::directory_iterator(folder, failure); !failure && entry != fs::directory_iterator();
         entry.increment(failure)) {
        entries.push_back(entry->path());
    }
    std::sort(entries.begin(), entries.end());
    return entries;
}

// "quelby.desktop" and "quelby-symbolic.svg" are, and so is "_quelbyctl" with the mark of zsh's functions.
bool isOurs(std::string_view name) {
    name.remove_prefix(name.starts_with('_') ? 1 : 0);
    return std::any_of(ourNames.begin(), ourNames.end(), [&](std::string_view ours) {
        const auto rest = name.starts_with(ours) ? name.substr(ours.size()) : "another name";
        return rest.empty() || rest.starts_with('.') || rest.starts_with("-symbolic.");
    });
}

void addFile(const fs::path& file, InstalledProgram& found) {
    if (isThere(file)) {
        found.files.push_back(file);
    }
}

bool hasLibraries(const fs::path& folder) {
    return std::any_of(libraries.begin(), libraries.end(),
                       [&](std::string_view library) { return isThere(folder / library); });
}

void addOurs(const fs::path& folder, InstalledProgram& found) {
    for (const auto& entry : entriesOf(folder)) {
        if (isOurs(entry.filename().native())) {
            addFile(entry, found);
        }
    }
}

void addOwnFolder(const fs::path& folder, InstalledProgram& found) {
    if (!isOwnFolder(folder)) {
        return;
    }
    for (const auto& entry : entriesOf(folder)) {
        addFile(entry, found);
    }
    found.folders.push_back(folder);
}

void addBelowPrefix(const fs::path& prefix, InstalledProgram& found) {
    for (const auto folder : ownFolders) {
        addOwnFolder(prefix / folder, found);
    }
    for (const auto folder : sharedFolders) {
        addOurs(prefix / folder, found);
    }
    for (const auto& size : entriesOf(prefix / iconTheme)) {
        addOurs(size / "apps", found);
    }
}

} // namespace

InstalledProgram installedProgram(const fs::path& program) {
    const auto folder = program.parent_path();
    const auto prefix = folder.parent_path();
    InstalledProgram found;
    addFile(program, found);
    for (const auto name : programs) {
        if (name != program.filename()) {
            addFile(folder / name, found);
        }
    }
    for (const auto library : libraries) {
        addFile(folder / library, found);
    }
    if (!hasLibraries(folder) && folder.filename() == "bin" && hasLibraries(prefix / "lib" / "quelby")) {
        addBelowPrefix(prefix, found);
    }
    return found;
}

} // namespace quelby
