#include "cli/terminal/layout/big_figures.h"

namespace quelby::cli {

namespace {

using Rows = std::array<std::string_view, 3>;

constexpr std::array<Rows, 10> digits{{
    {"┏━┓", "┃ ┃", "┗━┛"},
    {" ┓ ", " ┃ ", " ┻ "},
    {"╺━┓", "┏━┛", "┗━╸"},
    {"╺━┓", " ━┫", "╺━┛"},
    {"╻ ╻", "┗━┫", "  ╹"},
    {"┏━╸", "┗━┓", "╺━┛"},
    {"┏━╸", "┣━┓", "┗━┛"},
    {"╺━┓", "  ┃", "  ╹"},
    {"┏━┓", "┣━┫", "┗━┛"},
    {"┏━┓", "┗━┫", "╺━┛"},
}};

Rows figure(char character) {
    if (character >= '0' && character <= '9') {
        return digits.at(static_cast<std::size_t>(character - '0'));
    }
    if (character == '.') {
        return {" ", " ", "▪"};
    }
    return character == '-' ? Rows{"  ", "━━", "  "} : Rows{" ", " ", " "};
}

} // namespace

std::array<std::string, 3> bigFigures(std::string_view number) {
    std::array<std::string, 3> rows;
    for (const char character : number) {
        const auto parts = figure(character);
        for (std::size_t row = 0; row < rows.size(); ++row) {
            rows[row] += rows[row].empty() ? "" : " ";
            rows[row] += parts[row];
        }
    }
    return rows;
}

} // namespace quelby::cli
