#pragma once

#include "platform/preferences.h"
#include "platform/system.h"

namespace quelby {

// The user's defaults in the domain of the application that this program belongs to, which its bundle
// identifier names; removeAll() removes the whole domain. Without a bundle identifier there is no domain to
// be removed.
class UserDefaults final : public Preferences {
public:
    // The system itself writes for an application, in a while. A tool may have ended by then.
    explicit UserDefaults(ProgramKind kind) : kind_(kind) {}

    [[nodiscard]] std::optional<std::string> text(std::string_view key) override;
    [[nodiscard]] bool flag(std::string_view key) override;
    void setText(std::string_view key, std::string_view value) override;
    void setFlag(std::string_view key, bool value) override;
    void remove(std::string_view key) override;
    void removeAll() override;

private:
    void keep() const;

    ProgramKind kind_;
};

} // namespace quelby
