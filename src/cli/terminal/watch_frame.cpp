#include "cli/terminal/watch_frame.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <fmt/format.h>

#include "base/utf8.h"
#include "cli/terminal/display_width.h"
#include "console/cycle_line.h"

namespace quelby::cli {

namespace {

// SGR sequences (ECMA-48) of the sixteen colours that every terminal has, in its user's own choice of shades.
constexpr std::string_view bold = "\x1b[1m";
constexpr std::string_view faint = "\x1b[2m";
constexpr std::string_view green = "\x1b[32m";
constexpr std::string_view yellow = "\x1b[33m";
constexpr std::string_view red = "\x1b[31m";
constexpr std::string_view cyan = "\x1b[36m";
constexpr std::string_view plain = "\x1b[0m";

constexpr int widestContent = 100; // columns; wider lines are harder to read than they are worth

// Eighths of a character cell, for bars and columns.
constexpr std::array<std::string_view, 9> barCells{" ", "▏", "▎", "▍", "▌", "▋", "▊", "▉", "█"};
constexpr std::array<std::string_view, 8> columnCells{"▁", "▂", "▃", "▄", "▅", "▆", "▇", "█"};

std::string bar(double fraction, int columns) {
    const auto eighths = static_cast<int>(std::lround(std::clamp(fraction, 0.0, 1.0) * columns * 8));
    std::string cells;
    for (int column = 0; column < columns; ++column) {
        cells += barCells.at(static_cast<std::size_t>(std::clamp(eighths - column * 8, 0, 8)));
    }
    return cells;
}

std::string_view levelColour(Int percent) {
    return percent > 50 ? green : percent > 20 ? yellow : red;
}

class Frame {
public:
    Frame(const PublishedFields& fields, TerminalSize size, Colours colours)
        : fields_(fields)
        , rows_(size.rows)
        , margin_(size.columns > 20 ? 1 : 0)
        , width_(std::min(size.columns - 2 * margin_, widestContent))
        , colours_(colours) {}

    std::vector<std::string> lines(Date time) {
        header(time);
        battery();
        power();
        processes();
        trend();
        lines_.resize(std::min(lines_.size(), static_cast<std::size_t>(rows_)));
        return std::move(lines_);
    }

private:
    struct Piece {
        std::string text;
        std::string_view style = {};
    };

    // One line from pieces, cut at the frame's width.
    void add(const std::vector<Piece>& pieces) {
        std::string line(static_cast<std::size_t>(margin_), ' ');
        int left = width_;
        for (const auto& piece : pieces) {
            const int columns = std::min(displayWidth(piece.text), left);
            line += styled(fitted(piece.text, columns), piece.style);
            left -= columns;
        }
        lines_.push_back(std::move(line));
    }

    [[nodiscard]] std::string styled(std::string text, std::string_view style) const {
        const bool colourless = colours_ == Colours::off || style.empty() || text.empty();
        return colourless ? std::move(text) : fmt::format("{}{}{}", style, text, plain);
    }

    void heading(std::string_view title, const std::string& atTheRight) {
        lines_.emplace_back();
        const int room = std::max(width_ - displayWidth(atTheRight), 0);
        add({{fitted(title, room), bold}, {atTheRight, faint}});
    }

    void header(Date time) {
        const auto now = timeOfDay(time);
        add({{fitted("Quelby", std::max(width_ - displayWidth(now), 0)), bold}, {now, faint}});
    }

    void battery() {
        if (!fields_.hasBattery) {
            heading("Battery", "none");
            return;
        }
        const auto percent = fields_.batteryPercent.get();
        heading("Battery", std::string(batteryState(fields_)));
        const auto level = fmt::format("{:>4} % ", percent);
        add({{level, bold},
             {bar(static_cast<double>(percent) / 100, std::max(width_ - displayWidth(level), 0)),
              levelColour(percent)}});
        add({{fmt::format("{:.1f} W   {:.2f} V   {:.0f} mA   {:.1f} °C", fields_.realWatts.get(),
                          fields_.voltage.get(), fields_.amperage.get(), fields_.batteryTemp.get())}});
        add({{fmt::format("{}  {}", printable(fields_.predictedTime.get()), fields_.batteryRateStr.get())}});
        add({{fmt::format("health {} %   {} cycles   {} of {} mAh", fields_.batteryHealth.get(),
                          fields_.cycleCount.get(), fields_.rawCurrentCapacity.get(),
                          fields_.rawMaxCapacity.get()),
              faint}});
    }

    void power() {
        heading("Power", fmt::format("efficiency {}", fields_.efficiency.get()));
        component("CPU", fields_.cpuPower);
        component("GPU", fields_.gpuPower);
        component("Memory", fields_.memPower);
        component("Storage", fields_.diskPower);
        component("Network", fields_.netPower);
        add({{fmt::format("{:<8}{:>7.1f} W", "System", fields_.totalPower.get()), bold},
             {adapterText(), faint}});
    }

    [[nodiscard]] std::string adapterText() const {
        if (!fields_.isPluggedIn) {
            return {};
        }
        return fmt::format("   adapter {:.1f} W, of it {:.1f} W into the battery", fields_.acTotal.get(),
                           fields_.chargePower.get());
    }

    void component(std::string_view name, double watts) {
        const auto label = fmt::format("{:<8}{:>7.1f} W  ", name, watts);
        const double share = fields_.totalPower > 0 ? watts / fields_.totalPower : 0;
        add({{label}, {bar(share, std::max(width_ - displayWidth(label), 0)), cyan}});
    }

    void processes() {
        heading("Processes", fmt::format("CPU {:.1f} %", fields_.cpuUsage.get()));
        constexpr int figures = 22; // columns
        for (const auto& process : fields_.topProcesses.get()) {
            add({{fitted(printable(process.name), std::max(width_ - figures, 0))},
                 {fmt::format("{:>9.1f} %{:>9.2f} W", process.cpu, process.estimatedWatts)}});
        }
    }

    void trend() {
        const auto& totals = fields_.powerHistory.get();
        if (totals.empty()) {
            return;
        }
        const auto [lowest, highest] = std::minmax_element(totals.begin(), totals.end());
        heading("Trend", fmt::format("{:.1f} to {:.1f} W", *lowest, *highest));
        const auto shown = std::min(totals.size(), static_cast<std::size_t>(std::max(width_, 0)));
        std::string columns;
        for (auto total = totals.end() - static_cast<std::ptrdiff_t>(shown); total != totals.end(); ++total) {
            columns += columnCell(*total, *lowest, *highest);
        }
        add({{columns, cyan}});
    }

    static std::string_view columnCell(double value, double lowest, double highest) {
        // Halves, because the span of two figures may not be one.
        const double height = highest > lowest ? (value / 2 - lowest / 2) / (highest / 2 - lowest / 2) : 0;
        return columnCells.at(static_cast<std::size_t>(std::lround(height * (columnCells.size() - 1))));
    }

    const PublishedFields& fields_;
    int rows_;
    int margin_; // columns at the left and at the right
    int width_;  // columns between the margins
    Colours colours_;
    std::vector<std::string> lines_;
};

} // namespace

std::vector<std::string> watchFrame(const PublishedFields& fields, Date time, TerminalSize size,
                                    Colours colours) {
    return Frame(fields, size, colours).lines(time);
}

} // namespace quelby::cli
