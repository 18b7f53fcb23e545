#include "helper/macos_helper_scripts.h"
#include "helper/system_scripts.h"

namespace quelby {

std::string helperInstallScript(const std::filesystem::path& resources) {
    return macosInstallScript(resources.string());
}

std::string helperUninstallScript() {
    return macosUninstallScript();
}

std::string fullUninstallScript(const std::filesystem::path& program) {
    return macosFullUninstallScript(program.string());
}

} // namespace quelby
