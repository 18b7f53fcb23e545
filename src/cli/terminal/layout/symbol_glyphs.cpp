#include "cli/terminal/layout/symbol_glyphs.h"

#include <array>
#include <utility>

namespace quelby::cli {

namespace {

// No pictographs: terminals disagree about their width.
constexpr std::array<std::pair<std::string_view, std::string_view>, 25> glyphs{{
    {"arrow.down.circle.fill", "↓"},
    {"arrow.down.to.line", "↧"},
    {"arrow.triangle.2.circlepath", "↻"},
    {"battery.100percent", "▮"},
    {"battery.100percent.circle", "▮"},
    {"battery.75percent", "▮"},
    {"bolt.badge.checkmark.fill", "↯"},
    {"bolt.circle", "↯"},
    {"bolt.fill", "↯"},
    {"chart.bar.fill", "▟"},
    {"chart.line.uptrend.xyaxis", "↗"},
    {"checkmark.circle", "✓"},
    {"checkmark.circle.fill", "✓"},
    {"chevron.left", "‹"},
    {"clock", "◷"},
    {"desktopcomputer", "▭"},
    {"exclamationmark.triangle.fill", "▲"},
    {"flame.fill", "▴"},
    {"gauge.with.dots.needle.bottom.50percent", "◠"},
    {"heart.fill", "♥"},
    {"info.circle", "i"},
    {"powerplug.fill", "⊸"},
    {"sparkles", "✦"},
    {"thermometer.medium", "†"},
    {"waveform.path.ecg", "∿"},
}};

} // namespace

std::string_view glyph(std::string_view symbolName) {
    for (const auto& [name, character] : glyphs) {
        if (name == symbolName) {
            return character;
        }
    }
    return "•";
}

} // namespace quelby::cli
