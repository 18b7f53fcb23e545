// A desktop that writes down what is asked of it, and from which a test acts as a person would.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/desktop.h"

namespace quelby::fake {

// What was called, in order; shared by everything that takes part.
using Log = std::vector<std::string>;

struct Item final : app::StatusItem {
    Log& log;
    bool button = true;
    app::StatusItemActions actions;
    std::string symbol;
    std::string description;
    std::int64_t level = 0;
    std::string title;
    std::string toolTip;
    MenuBarDisplay display = MenuBarDisplay::watts;

    explicit Item(Log& shared) : log(shared) {}

    [[nodiscard]] bool hasButton() const override { return button; }

    void setActions(app::StatusItemActions wanted) override {
        log.emplace_back("set the actions");
        actions = std::move(wanted);
    }

    void setImage(std::string_view symbolName, std::string_view accessibilityDescription) override {
        log.emplace_back("set the image");
        symbol = symbolName;
        description = accessibilityDescription;
    }

    void setLevel(std::int64_t percent) override { level = percent; }

    void setTitle(std::string_view text) override {
        log.emplace_back("set the title");
        title = text;
    }

    void setToolTip(std::string_view text) override { toolTip = text; }

    void setDisplay(MenuBarDisplay chosen) override { display = chosen; }
};

struct Popover final : app::Popover {
    Log& log;
    bool shown = false;

    explicit Popover(Log& shared) : log(shared) {}

    [[nodiscard]] bool isShown() const override { return shown; }

    void show() override {
        log.emplace_back("show the popover");
        shown = true;
    }

    void showSettings() override {
        log.emplace_back("show the settings");
        shown = true;
    }

    void close() override {
        log.emplace_back("close the popover");
        shown = false;
    }
};

struct Desktop final : app::Desktop {
    Log& log;
    bool givesButton = true;
    std::optional<Item> item; // none before it is made, as is the popover
    std::optional<Popover> popover;
    std::shared_ptr<PowerMonitor> monitor;
    std::function<void()> quit;
    std::function<bool(const app::KeyDown&)> keyHandler;

    explicit Desktop(Log& shared) : log(shared) {}

    [[nodiscard]] app::StatusItem& makeStatusItem() override {
        log.emplace_back("make the status item");
        item.emplace(log).button = givesButton;
        return *item;
    }

    [[nodiscard]] app::Popover& makePopover(std::shared_ptr<PowerMonitor> shown,
                                            std::function<void()> quitAction) override {
        log.emplace_back("make the popover");
        monitor = std::move(shown);
        quit = std::move(quitAction);
        return popover.emplace(log);
    }

    void addKeyMonitor(std::function<bool(const app::KeyDown&)> handler) override {
        log.emplace_back("add the key monitor");
        keyHandler = std::move(handler);
    }

    void terminate() override { log.emplace_back("terminate"); }
};

} // namespace quelby::fake
