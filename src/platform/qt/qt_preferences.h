#pragma once

#include <filesystem>
#include <optional>

#include <QSettings>

#include "platform/preferences.h"

namespace quelby {

// The user's preference store: on Linux ~/.config/Quelby/Quelby.conf (or where $XDG_CONFIG_HOME points), or
// the named file. A store that is missing or cannot be read holds nothing.
class QtPreferences final : public Preferences {
public:
    explicit QtPreferences(const std::optional<std::filesystem::path>& file);

    [[nodiscard]] std::optional<std::string> text(std::string_view key) override;
    [[nodiscard]] bool flag(std::string_view key) override;
    void setText(std::string_view key, std::string_view value) override;
    void setFlag(std::string_view key, bool value) override;
    void remove(std::string_view key) override;
    void removeAll() override;

private:
    void set(const QString& key, const QVariant& value);

    QSettings settings_;
    bool ownFolder_; // the file lies in a folder of its own
};

} // namespace quelby
