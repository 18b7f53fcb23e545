#include "cli/output/title_output.h"

#include <algorithm>

#include <nlohmann/json.hpp>

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
    }
    return {};
}

} // namespace quelby::cli
