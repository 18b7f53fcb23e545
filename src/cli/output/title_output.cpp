#include "cli/output/title_output.h"

#include <algorithm>

#include <nlohmann/json.hpp>

#include "ui/presentation/elements/color.h"
#include "ui/presentation/text/cycle_line.h"
#include "ui/presentation/text/menu_bar_title.h"

namespace quelby::cli {

namespace {

using Json = nlohmann::ordered_json;

std::string withoutLeadingBlank(const std::string& title) {
    return title.empty() ? title : title.substr(1);
}

std::string asPangoMarkup(std::string_view text) {
    std::string markup;
    for (const char character : text) {
        switch (character) {
        case '&':
            markup += "&amp;";
            break;
        case '<':
            markup += "&lt;";
            break;
        case '>':
            markup += "&gt;";
            break;
        default:
            markup += character;
        }
    }
    return markup;
}

std::string asClass(std::string_view state) {
    std::string name(state);
    std::replace(name.begin(), name.end(), ' ', '-');
    return name;
}

Json forWaybar(const PublishedFields& fields, const std::string& title) {
    return {{"text", asPangoMarkup(withoutLeadingBlank(title))},
            {"tooltip", asPangoMarkup(statusBarToolTip(fields))},
            {"class", asClass(batteryState(fields))},
            {"percentage", fields.batteryPercent.get()}};
}

bool isLow(const PublishedFields& fields) {
    return fields.hasBattery && !fields.isPluggedIn &&
           Color::battery(fields.batteryPercent) == Color(ColorName::red);
}

// What begins a markup is doubled, so that it stands for itself.
std::string doubled(char mark, std::string_view text) {
    std::string result;
    for (const char character : text) {
        result += character == mark ? std::string(2, mark) : std::string(1, character);
    }
    return result;
}

std::string forI3blocks(const PublishedFields& fields, const std::string& title) {
    const auto markup = asPangoMarkup(title);
    return isLow(fields) ? R"(<span foreground="#ff5f57">)" + markup + "</span>" : markup;
}

std::string forPolybar(const PublishedFields& fields, const std::string& title) {
    return isLow(fields) ? "%{F#ff5f57}" + title + "%{F-}" : title;
}

std::string forTmux(const PublishedFields& fields, const std::string& title) {
    const auto markup = doubled('#', title);
    return isLow(fields) ? "#[fg=red]" + markup + "#[fg=default]" : markup;
}

} // namespace

std::string formattedTitle(const PublishedFields& fields, MenuBarDisplay display, TitleFormat format) {
    const auto title = menuBarTitle(fields, display);
    switch (format) {
    case TitleFormat::plain:
        return withoutLeadingBlank(title);
    case TitleFormat::json:
        return Json{{"symbol", menuBarSymbol(fields)}, {"title", title}}.dump();
    case TitleFormat::waybar:
        return forWaybar(fields, title).dump();
    case TitleFormat::i3blocks:
        return forI3blocks(fields, withoutLeadingBlank(title));
    case TitleFormat::polybar:
        return forPolybar(fields, withoutLeadingBlank(title));
    case TitleFormat::tmux:
        return forTmux(fields, withoutLeadingBlank(title));
    }
    return {};
}

} // namespace quelby::cli
