#include "cli/dashboard_json.h"

#include <cmath>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

namespace quelby::cli {

namespace {

using Json = nlohmann::ordered_json;

std::string colorText(Color color) {
    return color.opacity == 1 ? std::string(text(color.name))
                              : fmt::format("{}@{}", text(color.name), color.opacity);
}

// Whole numbers without a fraction, as people write them.
Json number(double value) {
    const bool whole = std::fabs(value) < 1e15 && value == std::trunc(value);
    return whole ? Json(static_cast<std::int64_t>(value)) : Json(value);
}

Json asJson(const Text& text) {
    return {{"text", text.text}, {"color", colorText(text.color)}};
}

Json asJson(const Symbol& symbol) {
    return {{"symbol", symbol.name}, {"color", colorText(symbol.color)}};
}

Json asJson(const Bar& bar) {
    return {{"fraction", bar.fraction}, {"color", colorText(bar.color)}};
}

Json asJson(const Label& label) {
    return {{"symbol", asJson(label.symbol)}, {"text", asJson(label.text)}};
}

Json asJson(const Choice& choice) {
    return {{"text", choice.text}, {"selected", choice.selected}};
}

Json asJson(const Option& option) {
    return {
        {"title", asJson(option.title)}, {"subtitle", asJson(option.subtitle)}, {"enabled", option.enabled}};
}

Json asJson(const StatusLine& status) {
    return {{"dot", colorText(status.dot)}, {"text", asJson(status.text)}};
}

Json asJson(const SliderRange& slider) {
    return {{"value", number(slider.value)},
            {"from", number(slider.from)},
            {"to", number(slider.to)},
            {"step", number(slider.step)}};
}

Json asJson(const StatBadge& badge) {
    return {{"label", asJson(badge.label)}, {"value", asJson(badge.value)}};
}

template <typename T>
Json asJson(const std::optional<T>& thing) {
    return thing ? asJson(*thing) : Json(nullptr);
}

Json asJson(const ComponentRow& row) {
    return {{"label", asJson(row.label)},
            {"bar", asJson(row.bar)},
            {"figure", asJson(row.figure)},
            {"detail", asJson(row.detail)}};
}

Json asJson(const ProcessRow& row) {
    return {{"position", asJson(row.position)},
            {"name", asJson(row.name)},
            {"cpu", asJson(row.cpu)},
            {"watts", asJson(row.watts)}};
}

Json asJson(const DetailRow& row) {
    return {{"symbol", asJson(row.symbol)},
            {"label", asJson(row.label)},
            {"value", asJson(row.value)},
            {"note", asJson(row.note)}};
}

template <typename List>
Json listAsJson(const List& list) {
    Json array = Json::array();
    for (const auto& element : list) {
        array.push_back(asJson(element));
    }
    return array;
}

// How most cards and sections begin.
template <typename Card>
Json titled(const Card& card) {
    return {{"symbol", asJson(card.symbol)}, {"title", asJson(card.title)}};
}

Json asJson(const ChargeLimitCard& card) {
    auto json = titled(card);
    json["enabled"] = card.enabled;
    json["helperInstalled"] = card.helperInstalled;
    json["subtitle"] = asJson(card.subtitle);
    if (card.offer) {
        json["explanation"] = asJson(card.offer->explanation);
        json["installButton"] = asJson(card.offer->installButton);
    }
    if (card.stopLevel) {
        json["stopAt"] = listAsJson(card.stopLevel->stopAt);
        json["slider"] = asJson(card.stopLevel->slider);
        json["scale"] = listAsJson(card.stopLevel->scale);
        json["status"] = asJson(card.stopLevel->status);
    }
    return json;
}

Json asJson(const PowerBadge& badge) {
    return {{"symbol", asJson(badge.symbol)},
            {"sign", asJson(badge.sign)},
            {"figure", asJson(badge.figure)},
            {"unit", asJson(badge.unit)},
            {"caption", asJson(badge.caption)},
            {"extra", badge.extra.empty() ? Json(nullptr) : listAsJson(badge.extra)}};
}

Json asJson(const BatteryCard& card) {
    auto json = titled(card);
    json["level"] = asJson(card.level);
    json["bar"] = asJson(card.bar);
    json["rate"] = asJson(card.rate);
    json["time"] = asJson(card.time);
    json["health"] = asJson(card.health);
    return json;
}

Json asJson(const ComponentCard& card) {
    return {{"title", asJson(card.title)},
            {"rows", listAsJson(card.rows)},
            {"total",
             {{"label", asJson(card.total.label)},
              {"bar", asJson(card.total.bar)},
              {"figure", asJson(card.total.figure)}}}};
}

Json asJson(const ProcessCard& card) {
    auto json = titled(card);
    if (card.placeholder) {
        json["placeholder"] = asJson(*card.placeholder);
    } else {
        json["rows"] = listAsJson(card.rows);
    }
    return json;
}

Json asJson(const TrendCard& card) {
    auto json = titled(card);
    json["now"] = asJson(card.now);
    json["samples"] = card.samples;
    json["min"] = asJson(card.min);
    json["avg"] = asJson(card.avg);
    json["max"] = asJson(card.max);
    return json;
}

Json asJson(const HistoryCard& card) {
    auto json = titled(card);
    json["today"] = asJson(card.today);
    json["ranges"] = listAsJson(card.ranges);
    if (card.placeholder) {
        json["placeholder"] = asJson(*card.placeholder);
    } else {
        json["points"] = card.points.size();
    }
    json["badges"] = listAsJson(card.badges);
    return json;
}

Json asJson(const EfficiencyCard& card) {
    auto json = titled(card);
    json["score"] = asJson(card.score);
    json["outOf"] = asJson(card.outOf);
    json["stars"] = card.stars;
    json["rating"] = asJson(card.rating);
    json["advice"] = asJson(card.advice);
    return json;
}

Json asJson(const BatteryDetailsCard& card) {
    auto json = titled(card);
    json["rows"] = listAsJson(card.rows);
    return json;
}

Json asJson(const GeneralSection& section) {
    auto json = titled(section);
    json["launchAtLogin"] = asJson(section.launchAtLogin);
    json["menuBarDisplay"] = {{"title", asJson(section.displayTitle)},
                              {"subtitle", asJson(section.displaySubtitle)},
                              {"choices", listAsJson(section.displays)}};
    return json;
}

Json asJson(const CalibrationSection& section) {
    auto json = titled(section);
    json["autoCalibrate"] = asJson(section.autoCalibrate);
    json["frequency"] = {{"title", asJson(section.frequency)}, {"choices", listAsJson(section.intervals)}};
    json["dates"] = listAsJson(section.dates);
    return json;
}

Json asJson(const HelperSection& section) {
    auto json = titled(section);
    json["explanation"] = asJson(section.explanation);
    json["status"] = asJson(section.status);
    json["button"] = asJson(section.button);
    return json;
}

Json asJson(const UninstallSection& section) {
    auto json = titled(section);
    json["explanation"] = asJson(section.explanation);
    json["button"] = asJson(section.button);
    return json;
}

template <typename Card>
void addIfShown(Json& object, const char* key, const std::optional<Card>& card) {
    if (card) {
        object[key] = asJson(*card);
    }
}

std::string written(const Json& object) {
    return object.dump(1, ' ', false, Json::error_handler_t::replace) + '\n';
}

} // namespace

std::string dashboardAsJson(const Dashboard& dashboard) {
    Json object = Json::object();
    object["header"] = titled(dashboard.header);
    addIfShown(object, "chargeLimit", dashboard.chargeLimit);
    object["powerBadge"] = asJson(dashboard.powerBadge);
    addIfShown(object, "battery", dashboard.battery);
    object["components"] = asJson(dashboard.components);
    object["processes"] = asJson(dashboard.processes);
    addIfShown(object, "trend", dashboard.trend);
    object["history"] = asJson(dashboard.history);
    object["efficiency"] = asJson(dashboard.efficiency);
    addIfShown(object, "details", dashboard.details);
    object["quit"] = asJson(dashboard.quit);
    return written(object);
}

std::string settingsAsJson(const SettingsPanel& panel) {
    Json object = Json::object();
    object["header"] = titled(panel.header);
    object["general"] = asJson(panel.general);
    object["calibration"] = asJson(panel.calibration);
    object["helper"] = asJson(panel.helper);
    object["uninstall"] = asJson(panel.uninstall);
    object["version"] = asJson(panel.version);
    object["quit"] = asJson(panel.quit);
    return written(object);
}

} // namespace quelby::cli
