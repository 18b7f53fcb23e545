#pragma once

namespace quelby {

// Whether this program is started when the user logs in.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    // False where it could not be done.
    [[nodiscard]] virtual bool registerProgram() = 0;
    [[nodiscard]] virtual bool unregisterProgram() = 0;
};

} // namespace quelby
