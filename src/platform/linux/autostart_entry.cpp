#include "platform/linux/autostart_entry.h"

#include <string_view>

#include "platform/posix/replace_file.h"

namespace quelby {

namespace {

constexpr mode_t ordinaryMode = 0644;

std::string withBackslashBefore(std::string_view characters, const std::string& text) {
    std::string escaped;
    for (const char character : text) {
        if (characters.find(character) != std::string_view::npos) {
            escaped += '\\';
        }
        escaped += character;
    }
    return escaped;
}

std::string replaced(const std::string& text, char character, std::string_view replacement) {
    std::string result;
    for (const char each : text) {
        if (each == character) {
            result += replacement;
        } else {
            result += each;
        }
    }
    return result;
}

// A percent sign starts a field code, quotes hold the argument together, and then the whole is a string of
// the key file with escapes of its own.
std::string asExecutable(const std::string& path) {
    const auto argument = '"' + withBackslashBefore("\"`$\\", replaced(path, '%', "%%")) + '"';
    return replaced(replaced(argument, '\\', "\\\\"), '\n', "\\n");
}

} // namespace

std::string autostartText(const std::filesystem::path& program) {
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Quelby\n"
           "Comment=Shows what this computer's power is doing\n"
           "Exec=" +
           asExecutable(program.string()) +
           " --background\n" // the session's panel may come later than its programs
           "Icon=quelby\n"
           "Terminal=false\n"
           "Categories=System;Monitor;\n";
}

AutostartEntry::AutostartEntry(const std::filesystem::path& configurationFolder,
                               std::filesystem::path program)
    : file_(configurationFolder / "autostart" / "quelby.desktop"), program_(std::move(program)) {}

bool AutostartEntry::registerProgram() {
    std::error_code ignored;
    std::filesystem::create_directories(file_.parent_path(), ignored);
    return replaceFile(file_, autostartText(program_), ordinaryMode);
}

bool AutostartEntry::unregisterProgram() {
    std::error_code failure;
    std::filesystem::remove(file_, failure);
    return !failure;
}

} // namespace quelby
