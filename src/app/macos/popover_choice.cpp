#include "app/macos/popover_choice.h"

#include <utility>

namespace quelby::app {

namespace {

bool shows(const std::unique_ptr<Popover>& popover) {
    return popover && popover->isShown();
}

} // namespace

PopoverChoice::PopoverChoice(std::unique_ptr<Popover> first, Maker makeOther)
    : first_(std::move(first)), makeOther_(std::move(makeOther)) {}

bool PopoverChoice::isShown() const {
    return shows(first_) || shows(other_);
}

// Whatever is shown already stays where it is.
void PopoverChoice::show(void (Popover::*how)()) {
    if (first_ && !shows(other_)) {
        (*first_.*how)();
    }
    if (shows(first_)) {
        return;
    }
    if (!other_) {
        other_ = makeOther_();
    }
    (*other_.*how)();
}

void PopoverChoice::show() {
    show(&Popover::show);
}

void PopoverChoice::showSettings() {
    show(&Popover::showSettings);
}

void PopoverChoice::close() {
    for (auto* const popover : {first_.get(), other_.get()}) {
        if (popover != nullptr && popover->isShown()) {
            popover->close();
        }
    }
}

} // namespace quelby::app
