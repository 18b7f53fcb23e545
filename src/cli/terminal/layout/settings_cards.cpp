#include "cli/terminal/layout/card_frame.h"
#include "cli/terminal/layout/card_parts.h"
#include "cli/terminal/layout/dashboard_cards.h"

namespace quelby::cli {

namespace {

Block optionLines(const Option& option, int columns) {
    Block block{spread({span(option.title)}, switchLine(option.enabled), columns)};
    append(block, sentence(option.subtitle, columns));
    return block;
}

CardText text(const GeneralSection& section, int columns) {
    CardText written{.title = titleLine(section), .content = optionLines(section.launchAtLogin, columns)};
    written.content.push_back({span(section.menuBarDisplay.title)});
    append(written.content, sentence(section.menuBarDisplay.subtitle, columns));
    written.content.push_back(choicesLine(section.menuBarDisplay.choices));
    return written;
}

CardText text(const CalibrationSection& section, int columns) {
    CardText written{.title = titleLine(section), .content = optionLines(section.autoCalibrate, columns)};
    written.content.push_back({span(section.frequency.title)});
    written.content.push_back(choicesLine(section.frequency.choices));
    for (const auto& date : section.dates) {
        append(written.content, sentence(date.text, columns, withGlyph(date.symbol, {})));
    }
    return written;
}

Line buttonLine(const Span& text) {
    return {{"[ " + text.text + " ]", {.color = ColorName::accent}}};
}

CardText text(const HelperSection& section, int columns) {
    CardText written{.title = titleLine(section), .content = sentence(section.explanation, columns)};
    written.content.push_back(statusLine(section.status.dot, section.status.text));
    written.content.push_back(buttonLine(span(section.button)));
    if (section.update) {
        append(written.content, sentence(section.update->explanation, columns));
        written.content.push_back(buttonLine(span(section.update->installButton.text)));
    }
    return written;
}

CardText text(const UninstallSection& section, int columns) {
    CardText written{.title = titleLine(section), .content = sentence(section.explanation, columns)};
    written.content.push_back(buttonLine(span(section.button.text)));
    return written;
}

} // namespace

std::vector<Block> settingsCards(const SettingsPanel& panel, int columns) {
    const int content = contentWidth(columns);
    return {framed(text(panel.general, content), columns), framed(text(panel.calibration, content), columns),
            framed(text(panel.helper, content), columns), framed(text(panel.uninstall, content), columns)};
}

} // namespace quelby::cli
