#include "app/linux/popover/linux_popover.h"

#include <chrono>

#include <malloc.h>

#include "console/standard_output.h"

namespace quelby::app {

namespace {

using namespace std::chrono_literals;

constexpr auto keptAfterClosing = 60s;

} // namespace

LinuxPopover::LinuxPopover(PopoverParts parts) : parts_(std::move(parts)) {
    givingBack_.setSingleShot(true);
    givingBack_.setInterval(keptAfterClosing);
    QObject::connect(&givingBack_, &QTimer::timeout, &givingBack_, [this] { giveBack(); });
}

LinuxPopover::~LinuxPopover() {
    giveBack();
}

bool LinuxPopover::make() {
    if (window_) {
        return true;
    }
    if (!library_) {
        library_ = loadQuickLibrary();
    }
    if (!library_) {
        writeToStandardError("quelby: the library with the dashboard is missing\n");
        return false;
    }
    shownTextScale_ = parts_.appearance().textScale;
    window_ = library_->makeWindow(parts_, form_,
                                   {.left = [this] { leave(); },
                                    .pressedOutside =
                                        [this](QPoint where) {
                                            closingPress_.happened(where, std::chrono::steady_clock::now());
                                            close();
                                        },
                                    .closedByFrame = [this] { leave(); }});
    return true;
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
    if (make()) {
        window_->show(itemPlace_);
    }
}

void LinuxPopover::showSettings() {
    show();
    if (window_) {
        window_->showSettings();
    }
}

void LinuxPopover::close() {
    if (isShown()) {
        window_->hide();
        givingBack_.start();
    }
}

// Nothing is left of the program where there is no tray to open it from again.
void LinuxPopover::leave() {
    close();
    if (form_ == PopoverForm::ordinary) {
        parts_.quit();
    }
}

bool LinuxPopover::wasClosedByThisPress(std::optional<QPoint> place) {
    return closingPress_.isThePressOfTheItem(place, std::chrono::steady_clock::now());
}

void LinuxPopover::appearanceChanged() {
    const auto appearance = parts_.appearance();
    if (appearance.textScale != shownTextScale_) { // the window is of another size then
        close();
        giveBack();
    } else if (window_) {
        window_->setAppearance(appearance);
    }
}

} // namespace quelby::app
