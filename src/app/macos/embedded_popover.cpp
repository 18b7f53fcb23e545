#include "app/macos/embedded_popover.h"

#include <utility>

#include "app/macos/menu_bar_application.h"

namespace quelby::app {

EmbeddedPopover::EmbeddedPopover(NSStatusBarButton* button, PopoverContent::ModelMaker makeModel)
    : popover_(button, [this] { dashboard_.shut(); })
    , host_(QWindow::fromWinId(reinterpret_cast<WId>(popover_.hostView())))
    , dashboard_(std::move(makeModel), [this] { close(); }) {
    if (host_) {
        dashboard_.setParent(host_.get());
        dashboard_.setPosition(0, 0);
        dashboard_.create();
    }
}

bool EmbeddedPopover::holdsDashboard() const {
    return host_ && popover_.holdsContent();
}

bool EmbeddedPopover::isShown() const {
    return popover_.isShown();
}

Appearance EmbeddedPopover::appearance() const {
    return {.dark = popover_.isDark(), .animated = !prefersReducedMotion()};
}

void EmbeddedPopover::show() {
    dashboard_.open(appearance());
    popover_.show();
    dashboard_.setAppearance(appearance()); // which the popover has from where it stands
    dashboard_.requestActivate(); // the popover's window has the keyboard; the dashboard is to have it there
}

void EmbeddedPopover::showSettings() {
    show();
    dashboard_.showSettings();
}

void EmbeddedPopover::close() {
    popover_.close();
}

} // namespace quelby::app
