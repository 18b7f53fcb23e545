#include "ui/presentation/cards/dialogs.h"

namespace quelby {

Dialog chargingTip() {
    return {.title = "Disable Optimized Battery Charging",
            .message = "For Quelby's charge limit to work properly, disable macOS Optimized Battery Charging "
                       "in System Settings → Battery.",
            .action = "Open Battery Settings",
            .cancel = "Got it"};
}

Dialog uninstallConfirmation() {
    return {.title = "Uninstall Quelby?",
            .message = "This will remove the charge helper, all settings, history data, and the app itself. "
                       "This cannot be undone.",
            .action = "Uninstall Everything",
            .destructive = true,
            .cancel = "Cancel"};
}

} // namespace quelby
