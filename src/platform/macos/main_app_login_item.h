#pragma once

#include "platform/login_item.h"

namespace quelby {

// The application that this program belongs to, as a login item of the system's service manager. It fails for
// a program outside an application's bundle.
class MainAppLoginItem final : public LoginItem {
public:
    [[nodiscard]] bool registerProgram() override;
    [[nodiscard]] bool unregisterProgram() override;
};

} // namespace quelby
