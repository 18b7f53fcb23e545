// The two questions that the dashboard asks.
#pragma once

#include "platform/package_manager.h"
#include "platform/system_words.h"
#include "ui/presentation/elements/record.h"

namespace quelby {

#define QUELBY_MEMBERS_OF_Dialog(MEMBER)                                                                     \
    MEMBER(words, std::string_view, title)                                                                   \
    MEMBER(words, std::string_view, message)                                                                 \
    MEMBER(words, std::string_view, action) /* the button that does something */                             \
    MEMBER(plain, bool, destructive)                                                                         \
    MEMBER(words, std::string_view, cancel) /* the button that only closes */

struct Dialog {
    QUELBY_RECORD(Dialog)
};

// Raised the first time that the charge limit is switched on.
[[nodiscard]] Dialog chargingTip(const SystemWords& words);

// Where the program came as a package, its manager is to remove it, and the question says how.
[[nodiscard]] Dialog uninstallConfirmation(std::optional<PackageManager> manager = std::nullopt);

} // namespace quelby
