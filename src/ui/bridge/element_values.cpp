#include "ui/bridge/element_values.h"

#include <fmt/format.h>

namespace quelby {

namespace {

Ink::Name inkName(ColorName name) {
    switch (name) {
    case ColorName::primary:
        return Ink::Primary;
    case ColorName::secondary:
        return Ink::Secondary;
    case ColorName::green:
        return Ink::Green;
    case ColorName::yellow:
        return Ink::Yellow;
    case ColorName::orange:
        return Ink::Orange;
    case ColorName::red:
        return Ink::Red;
    case ColorName::blue:
        return Ink::Blue;
    case ColorName::purple:
        return Ink::Purple;
    case ColorName::cyan:
        return Ink::Cyan;
    case ColorName::accent:
        return Ink::Accent;
    case ColorName::white:
        return Ink::White;
    }
    return Ink::Primary;
}

} // namespace

QString qString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

InkValue::InkValue(Color color) : name(inkName(color.name)), opacity(color.opacity) {}

TextValue::TextValue(const Text& content) : text(qString(content.text)), ink(content.color), present(true) {}

TextValue::TextValue(const std::optional<Text>& content)
    : TextValue(content ? TextValue(*content) : TextValue()) {}

SymbolValue::SymbolValue(const Symbol& symbol) : name(qString(symbol.name)), ink(symbol.color) {}

LabelValue::LabelValue(const Label& label) : symbol(label.symbol), text(label.text) {}

BarValue::BarValue(const Bar& bar)
    : fraction(bar.fraction), percent(qString(fmt::format("{:.0f}%", bar.fraction * 100))), ink(bar.color) {}

ChoiceValue::ChoiceValue(const Choice& choice) : text(qString(choice.text)), selected(choice.selected) {}

OptionValue::OptionValue(const Option& option)
    : title(option.title), subtitle(option.subtitle), enabled(option.enabled) {}

StatusValue::StatusValue(const StatusLine& status) : dot(status.dot), text(status.text) {}

} // namespace quelby
