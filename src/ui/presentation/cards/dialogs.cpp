#include "ui/presentation/cards/dialogs.h"

namespace quelby {

Dialog chargingTip(const SystemWords& words) {
    return {
        .title = words.tipTitle, .message = words.tipMessage, .action = words.tipAction, .cancel = "Got it"};
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
