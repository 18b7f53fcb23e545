#include "app/command_line.h"

#include <limits>

#include <fmt/format.h>

#include "app/command_line_description.h"
#include "base/number_text.h"

namespace quelby::app {

namespace {

constexpr double smallestScale = 0.5;
constexpr double largestScale = 8;

// Numbers are parsed here and not by the option library, which would follow the locale.
double parseNumber(const char* option, const std::string& text, double least, double most) {
    const auto number = decimalNumber(text);
    if (!number || *number < least || *number > most) {
        throw CLI::ValidationError(
            fmt::format("{} takes a number from {} to {}, not \"{}\"", option, least, most, text));
    }
    return *number;
}

// The command line as it is being read.
struct Reading {
    CLI::App app{"Shows what this computer's power is doing, and keeps a history of it.", "quelby"};
    Request request;
    bool headless = false;
    bool light = false;
    std::optional<std::filesystem::path> file;
    ScreenshotCommand screenshot;
    TrayCommand tray;

    Reading() {
        addCommonOptions(app, request.arguments);
        auto* const headlessForm = app.add_flag(
            "--headless", headless, "No user interface: record the history, and print a line for each cycle");
        app.add_flag("--background", tray.background,
                     "Started with the session: wait for the tray, and open no window without one")
            ->excludes(headlessForm);
        app.add_flag("--show", tray.show, "Open the dashboard as soon as its item is there")
            ->excludes(headlessForm);
        addPathOption(app, "--screenshot", "FILE.png", file,
                      "Draw the dashboard, without a display, and end");
        auto* const screenshotForm = app.get_option("--screenshot")->excludes(headlessForm);
        addPictureOptions(*screenshotForm);
    }

    void addPictureOptions(CLI::Option& screenshotForm) {
        add("--view", "dashboard|settings|energy",
            "With --screenshot: the page to draw; dashboard unless named", screenshotForm,
            [this](const std::string& text) {
                screenshot.energy = text == "energy";
                screenshot.page = screenshot.energy ? Page::dashboard : parsePage(text);
            });
        add("--scale", "N", "With --screenshot: pixels in a point", screenshotForm,
            [this](const std::string& text) {
                screenshot.scale = parseNumber("--scale", text, smallestScale, largestScale);
            });
        add("--scroll", "TOP", "With --screenshot: points that are above the upper edge", screenshotForm,
            [this](const std::string& text) {
                screenshot.scroll = parseNumber("--scroll", text, 0, 1'000'000);
            });
        auto* const darkForm = app.add_flag("--dark", screenshot.dark, "With --screenshot: dark");
        auto* const lightForm =
            app.add_flag("--light", light, "With --screenshot: light, which it is unless asked otherwise");
        darkForm->needs(&screenshotForm)->excludes(lightForm);
        lightForm->needs(&screenshotForm);
    }

    void add(const char* name, const char* type, const char* help, CLI::Option& needed,
             const std::function<void(const std::string&)>& read) {
        app.add_option_function<std::string>(name, read, help)->type_name(type)->needs(&needed);
    }

    [[nodiscard]] Request read() {
        if (file) {
            screenshot.file = *file;
            request.command = screenshot;
            return request;
        }
        request.command = headless ? Command(HeadlessCommand()) : Command(tray);
        request.arguments.machine.afterLastLine =
            request.arguments.pace == Pace::withoutWaiting ? AfterLastLine::stay : AfterLastLine::startAgain;
        return request;
    }
};

} // namespace

std::variant<Request, Answer> parseCommandLine(int argc, const char* const* argv) {
    Reading reading;
    if (auto answer = parseArguments(reading.app, reading.request.arguments, argc, argv)) {
        return *std::move(answer);
    }
    return reading.read();
}

void describeCommandLine(const std::function<void(const CLI::App&)>& describe) {
    const Reading reading;
    describe(reading.app);
}

} // namespace quelby::app
