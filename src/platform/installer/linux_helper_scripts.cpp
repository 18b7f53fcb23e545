#include "platform/installer/linux_helper_scripts.h"

#include <fmt/format.h>

#include "platform/helper_names.h"
#include "platform/installer/shell_quoting.h"
#include "platform/installer/systemd_unit.h"

namespace quelby {

namespace {

namespace fs = std::filesystem;

std::string quoted(const fs::path& path) {
    return shellQuoted(path.native());
}

// Each with a blank before it.
std::string quoted(const std::vector<fs::path>& paths) {
    std::string words;
    for (const auto& path : paths) {
        words += ' ' + quoted(path);
    }
    return words;
}

fs::path below(const fs::path& root, const fs::path& path) {
    return root / path.relative_path();
}

} // namespace

std::string linuxInstallScript(const fs::path& resourceFolder, const fs::path& root) {
    const auto executable = below(root, linux_helper::executable);
    // The umask is that of whoever asked, and could open to everybody what root is to run. cp -f replaces an
    // executable that is running, which cannot be written to.
    return fmt::format("umask 022\n"
                       "mkdir -p {executableFolder} {folder} && cp -f {source} {executable}"
                       " && chmod 755 {executable} && chmod 777 {folder} && cat > {unit} << 'UNIT'\n"
                       "{content}"
                       "UNIT\n"
                       "systemctl daemon-reload && systemctl enable {service} && systemctl restart {service}",
                       fmt::arg("executableFolder", quoted(executable.parent_path())),
                       fmt::arg("folder", quoted(below(root, linux_helper::folder))),
                       fmt::arg("source", quoted(resourceFolder / helperExecutableName)),
                       fmt::arg("executable", quoted(executable)),
                       fmt::arg("unit", quoted(below(root, linux_helper::unit))),
                       fmt::arg("content", systemdUnit()), fmt::arg("service", linux_helper::service));
}

std::string linuxUninstallScript(const fs::path& root) {
    // The levels come back before anything is removed, and once nobody sets them again.
    return fmt::format("systemctl disable --now {service} 2>/dev/null; {executable} --restore 2>/dev/null;"
                       " rm -f {unit}; systemctl daemon-reload 2>/dev/null;"
                       " rm -f {executable}; rm -rf {state}; rm -rf {folder}",
                       fmt::arg("service", linux_helper::service),
                       fmt::arg("executable", quoted(below(root, linux_helper::executable))),
                       fmt::arg("unit", quoted(below(root, linux_helper::unit))),
                       fmt::arg("state", quoted(below(root, linux_helper::stateFolder))),
                       fmt::arg("folder", quoted(below(root, linux_helper::folder))));
}

std::string linuxFullUninstallScript(const InstalledProgram& program, const fs::path& root) {
    auto script = linuxUninstallScript(root);
    if (!program.files.empty()) {
        script += fmt::format("; rm -f{}; removed=$?", quoted(program.files));
        if (!program.folders.empty()) {
            script += fmt::format("; rmdir{} 2>/dev/null", quoted(program.folders));
        }
        script += "; exit $removed";
    }
    return script;
}

} // namespace quelby
