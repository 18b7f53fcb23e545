// The file in which GNOME and its relatives keep the settings that a user has changed (dconf), for desktops on which
// nobody hands them out.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <variant>

namespace quelby::app {

using DconfValues = std::map<std::string, std::variant<bool, double, std::string>, std::less<>>;

// Of the file's content: by their paths ("/org/gnome/desktop/interface/color-scheme"). What is of another kind, cut off
// or not understood is left out.
[[nodiscard]] DconfValues dconfValues(std::string_view content);

} // namespace quelby::app
