#include "helper/linux_helper_scripts.h"
#include "helper/system_scripts.h"

namespace quelby {

std::string helperInstallScript(const std::filesystem::path& resources) {
    return linuxInstallScript(resources);
}

std::string helperUninstallScript() {
    return linuxUninstallScript();
}

std::string fullUninstallScript(const std::filesystem::path& program) {
    return linuxFullUninstallScript(program);
}

} // namespace quelby
