#include "ui/presentation/cards/dialogs.h"

namespace quelby {

namespace {

// The words around the command that removes the package.
#define QUELBY_WITH_PACKAGE(command)                                                                         \
    "This will remove the charge helper, all settings and history data, but not the app itself, which "      \
    "came as a package: \"" command "\" removes it. This cannot be undone."

std::string_view whatRemains(PackageManager manager) {
    switch (manager) {
    case PackageManager::apt:
        return QUELBY_WITH_PACKAGE("sudo apt remove quelby");
    case PackageManager::rpm:
        return QUELBY_WITH_PACKAGE("sudo rpm -e quelby");
    case PackageManager::pacman:
        return QUELBY_WITH_PACKAGE("sudo pacman -R quelby");
    }
    return {};
}

#undef QUELBY_WITH_PACKAGE

} // namespace

Dialog chargingTip(const SystemWords& words) {
    return {
        .title = words.tipTitle, .message = words.tipMessage, .action = words.tipAction, .cancel = "Got it"};
}

Dialog uninstallConfirmation(std::optional<PackageManager> manager) {
    return {.title = "Uninstall Quelby?",
            .message = manager ? whatRemains(*manager)
                               : "This will remove the charge helper, all settings, history data, and the "
                                 "app itself. This cannot be undone.",
            .action = "Uninstall Everything",
            .destructive = true,
            .cancel = "Cancel"};
}

} // namespace quelby
