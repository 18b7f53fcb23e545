// The settings that the programs of an X11 desktop share (XSETTINGS of freedesktop.org), such as the name of
// GTK's theme.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include <QByteArray>

namespace quelby::app {

class XSettings {
public:
    XSettings() = default;

    // From the property of the settings' manager. What is cut off or not understood is left out; colours are
    // not kept.
    explicit XSettings(const QByteArray& property);

    // Nothing where there is no such setting, or one of another kind.
    [[nodiscard]] std::optional<std::int32_t> number(std::string_view name) const;
    [[nodiscard]] std::optional<std::string> text(std::string_view name) const;

    bool operator==(const XSettings&) const = default;

private:
    std::map<std::string, std::variant<std::int32_t, std::string>, std::less<>> values_;
};

} // namespace quelby::app
