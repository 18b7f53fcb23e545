#include "cli/terminal/layout/styled_line.h"

#include <algorithm>

#include "base/utf8.h"
#include "cli/terminal/layout/display_width.h"

namespace quelby::cli {

Span span(const Text& text) {
    return {printable(text.text), {.color = text.color}};
}

Span bold(const Text& text) {
    return {printable(text.text), {.color = text.color, .bold = true}};
}

Span blanks(int columns) {
    return {std::string(static_cast<std::size_t>(std::max(columns, 0)), ' '), {}};
}

int displayWidth(const Line& line) {
    int columns = 0;
    for (const auto& span : line) {
        columns += displayWidth(span.text);
    }
    return columns;
}

Line fitted(const Line& line, int columns) {
    Line fit;
    int left = std::max(columns, 0);
    for (const auto& span : line) {
        const int width = displayWidth(span.text);
        fit.push_back({width <= left ? span.text : fitted(span.text, left), span.style});
        left -= std::min(width, left);
    }
    fit.push_back(blanks(left));
    return fit;
}

Line spread(const Line& left, const Line& right, int columns) {
    const int room = columns - displayWidth(left) - displayWidth(right);
    if (room < (left.empty() ? 0 : 1)) {
        return fitted(left, columns);
    }
    Line line = left;
    line.push_back(blanks(room));
    return joined(std::move(line), right);
}

Line withoutEnd(Line line) {
    while (!line.empty()) {
        auto& text = line.back().text;
        text.erase(text.find_last_not_of(' ') + 1);
        if (!text.empty()) {
            break;
        }
        line.pop_back();
    }
    return line;
}

Line joined(Line line, const Line& more) {
    line.insert(line.end(), more.begin(), more.end());
    return line;
}

std::vector<std::string> wrapped(std::string_view sentence, int columns) {
    std::vector<std::string> lines;
    std::string line;
    for (std::size_t start = 0; start < sentence.size();) {
        const auto end = std::min(sentence.find(' ', start), sentence.size());
        const auto word = sentence.substr(start, end - start);
        if (!line.empty() && displayWidth(line) + 1 + displayWidth(word) > columns) {
            lines.push_back(std::move(line));
            line.clear();
        }
        line += line.empty() ? "" : " ";
        line += word;
        start = end + 1;
    }
    lines.push_back(std::move(line));
    return lines;
}

} // namespace quelby::cli
