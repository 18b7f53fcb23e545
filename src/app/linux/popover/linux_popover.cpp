#include "app/linux/popover/linux_popover.h"

#include <chrono>

#include <malloc.h>

#include "console/standard_output.h"

namespace quelby::app {

namespace {

using namespace std::chrono_literals;

constexpr auto keptAfterClosing = 60s;

} // namespace

LinuxPopover::LinuxPopover(PopoverParts parts, GivesWay givesWay)
    : parts_(std::move(parts)), givesWay_(std::move(givesWay)) {
    givingBack_.setSingleShot(true);
    givingBack_.setInterval(keptAfterClosing);
    QObject::connect(&givingBack_, &QTimer::timeout, &givingBack_, [this] { giveBack(); });
}

LinuxPopover::~LinuxPopover() {
    giveBack();
}

bool LinuxPopover::load() {
    if (library_) {
        return true;
    }
    if (givesWay_()) {
        return false;
    }
    auto loaded = loadQuickLibrary();
    if (!loaded) {
        writeToStandardError("quelby: " + loaded.error().sentence + '\n');
        return false;
    }
    library_ = *std::move(loaded);
    return true;
}

bool LinuxPopover::make() {
    if (window_) {
        return true;
    }
    if (!load()) {
        return false;
    }
    shownTextScale_ = parts_.appearance().textScale;
    window_ = library_->makeWindow(
        parts_, form_,
        {.left = [this] { leave(); },
         .wentElsewhere = [this](std::optional<QPoint> pointer) { goneElsewhere(pointer); },
         .closedByFrame = [this] { leave(); },
         .itemFound = [this](QPoint pointer) { itemPress_.pointer = pointer; }});
    return true;
}

// Without an item there would be no way back to an ordinary window, nor one to end the program.
void LinuxPopover::leave() {
    close();
    if (form_ == PopoverForm::ordinary) {
        parts_.quit();
    }
}

void LinuxPopover::goneElsewhere(std::optional<QPoint> pointer) {
    const auto now = std::chrono::steady_clock::now();
    if (!openingPress_.goesOn(pointer, now)) {
        closingPress_.happened(pointer, now);
        close();
    }
}

void LinuxPopover::giveBack() {
    givingBack_.stop();
    if (window_) {
        window_.reset();
        malloc_trim(0); // what the allocator would keep for the next opening
    }
}

void LinuxPopover::setForm(PopoverForm form) {
    if (form != form_) {
        close();
        giveBack();
        form_ = form;
    }
}

bool LinuxPopover::isShown() const {
    return window_ && window_->isShown();
}

void LinuxPopover::show() {
    givingBack_.stop();
    if (!isShown()) {
        appearanceChanged(); // which not everybody tells of
    }
    if (make()) {
        window_->show(itemPress_);
    }
    itemPress_.isNew = false;
}

void LinuxPopover::showSettings() {
    show();
    if (window_) {
        window_->showSettings();
    }
}

void LinuxPopover::close() {
    itemPress_.isNew = false;
    if (isShown()) {
        window_->hide();
        givingBack_.start();
    }
}

bool LinuxPopover::itemPressed(std::optional<QPoint> told, std::chrono::milliseconds doublePress) {
    if (!system_) {
        system_ = windowSystem();
    }
    const auto now = std::chrono::steady_clock::now();
    const auto pointer = pointerPlace(*system_);
    const bool closedIt = closingPress_.isThePressOfTheItem(pointer, now);
    if (closedIt || (isShown() && openingPress_.goesOn(pointer, now))) {
        return false;
    }
    itemPress_ = {.told = told, .pointer = pointer, .isNew = true};
    if (!isShown()) {
        openingPress_.happened(pointer, now, doublePress);
    }
    return true;
}

void LinuxPopover::viewChanged() {
    if (form_ == PopoverForm::atTheItem) {
        close();
    }
}

void LinuxPopover::appearanceChanged() {
    const auto appearance = parts_.appearance();
    if (appearance.textScale != shownTextScale_) { // the window is of another size then
        if (isShown()) {
            close();
        }
        giveBack();
    } else if (window_) {
        window_->setAppearance(appearance);
    }
}

} // namespace quelby::app
