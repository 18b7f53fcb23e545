#include "platform/installer/macos_helper_scripts.h"

#include <fmt/format.h>

#include "platform/helper_names.h"
#include "platform/installer/launchd_property_list.h"

namespace quelby {

namespace {

using namespace macos_helper;

std::string asAdministrator(std::string_view literal) {
    return fmt::format(R"(do shell script "{}" with administrator privileges)", literal);
}

std::string withEscapes(std::string_view text) {
    std::string escaped;
    for (const char character : text) {
        if (character == '\n') {
            escaped += "\\n";
        } else if (character == '"') {
            escaped += "\\\"";
        } else {
            escaped += character;
        }
    }
    return escaped;
}

std::string installation(std::string_view resourceFolder) {
    auto content = launchdPropertyList();
    content.pop_back(); // the line break before the here-document's end is the last line's
    return fmt::format(
        "mkdir -p '{executableFolder}' '{folder}' && cp '{resources}/{name}' '{executable}'"
        " && chmod 755 '{executable}' && chmod 777 '{folder}' && cat > '{propertyList}' << 'PLIST'\n"
        "{content}\n"
        "PLIST\n"
        "launchctl load '{propertyList}'",
        fmt::arg("executableFolder", executableFolder), fmt::arg("folder", folder),
        fmt::arg("resources", resourceFolder), fmt::arg("name", helperExecutableName),
        fmt::arg("executable", executable), fmt::arg("propertyList", propertyList),
        fmt::arg("content", withEscapes(content)));
}

std::string removal() {
    return fmt::format("launchctl unload '{0}' 2>/dev/null; rm -f '{0}'; rm -f '{1}'; rm -rf '{2}'",
                       propertyList, executable, folder);
}

} // namespace

std::string macosInstallScript(std::string_view resourceFolder) {
    return asAdministrator(installation(resourceFolder));
}

std::string macosUpdateScript(std::string_view resourceFolder) {
    return asAdministrator(fmt::format("launchctl unload '{}' 2>/dev/null; rm -f '{}'; {}", propertyList,
                                       executable, installation(resourceFolder)));
}

std::string macosUninstallScript() {
    return asAdministrator(removal());
}

std::string macosFullUninstallScript(std::string_view bundle) {
    return asAdministrator(fmt::format("{}; rm -rf '{}'", removal(), bundle));
}

} // namespace quelby
