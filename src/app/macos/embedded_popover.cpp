#include "app/macos/embedded_popover.h"

#include <utility>

namespace quelby::app {

EmbeddedPopover::EmbeddedPopover(NSStatusBarButton* button, PopoverContent::ModelMaker makeModel)
    : popover_(button,
               {.closed = [this] { dashboard_.shut(); }, .appearanceChanged = [this] { followAppearance(); }})
    , host_(QWindow::fromWinId(reinterpret_cast<WId>(popover_.hostView())))
    , dashboard_(std::move(makeModel), [this] { close(); })
    , system_([this] { followAppearance(); }) {
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
    auto appearance = systemAppearance();
    appearance.dark = popover_.isDark();
    return appearance;
}

void EmbeddedPopover::followAppearance() {
    dashboard_.setAppearance(appearance());
}

void EmbeddedPopover::show() {
    dashboard_.open(appearance());
    if (!popover_.show()) {
        dashboard_.shut();
        return;
    }
    followAppearance();           // which the popover has from where it stands
    dashboard_.requestActivate(); // the popover's window has the keyboard; the dashboard is to have it there
}

void EmbeddedPopover::showSettings() {
    show();
    if (isShown()) {
        dashboard_.showSettings();
    }
}

void EmbeddedPopover::close() {
    popover_.close();
}

} // namespace quelby::app
