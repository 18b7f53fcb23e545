#include "app/linux/tray/linux_status_item.h"

namespace quelby::app {

namespace {

std::string trimmed(std::string_view title) {
    return std::string(title.substr(title.empty() ? 0 : 1));
}

} // namespace

LinuxStatusItem::LinuxStatusItem(Listener listener) : listener_(std::move(listener)) {
    registerDBusTypes();
}

void LinuxStatusItem::setBus(const std::optional<QDBusConnection>& bus) {
    watcher_.reset();
    item_.reset();
    host_.reset();
    if (!bus) {
        dockInOlderTray();
        return;
    }
    item_.emplace(*bus, actions_, listener_.pressed, listener_.tokenGiven);
    watcher_.emplace(*bus, StatusNotifierWatcher::Listener{
                               .met = [this](const TrayHost& host) { item_->setHost(host); },
                               .shown = [this](const std::optional<TrayHost>& host) { hostChanged(host); }});
}

void LinuxStatusItem::hostChanged(const std::optional<TrayHost>& host) {
    host_ = host;
    if (!host_) {
        dockInOlderTray();
        return;
    }
    older_.reset();
    listener_.shown(true);
    takeInk();
    show();
}

void LinuxStatusItem::lookForOlderTray() {
    if (!host_ && !older_) {
        dockInOlderTray();
    }
}

PanelStyle LinuxStatusItem::panelStyle() const {
    return host_ ? host_->panel : PanelStyle::published;
}

void LinuxStatusItem::setPanel(const PanelClues& clues) {
    panel_ = clues;
    takeInk();
}

void LinuxStatusItem::takeInk() {
    if (const auto ink = statusInk(panelStyle(), panel_); ink != content_.ink) {
        content_.ink = ink;
        showSoon();
    }
}

void LinuxStatusItem::dockInOlderTray() {
    older_ = XEmbedItem::dock({.pressed =
                                   [this](QPoint where) {
                                       if (listener_.pressed(where)) {
                                           actions_.toggle();
                                       }
                                   },
                               .scrolled = [this](int steps) { actions_.scroll(steps); },
                               .lost =
                                   [this] {
                                       QMetaObject::invokeMethod(
                                           &owner_, [this] { olderTrayLost(); }, Qt::QueuedConnection);
                                   }});
    if (older_) {
        older_->show(content_);
    }
    listener_.shown(older_ != nullptr);
}

// A host may have come meanwhile.
void LinuxStatusItem::olderTrayLost() {
    older_.reset();
    if (!host_) {
        dockInOlderTray();
    }
}

// A symbol and a title that change together are drawn once.
void LinuxStatusItem::showSoon() {
    if (!showing_) {
        showing_ = true;
        QMetaObject::invokeMethod(
            &owner_, [this] { show(); }, Qt::QueuedConnection);
    }
}

void LinuxStatusItem::show() {
    showing_ = false;
    if (item_) {
        item_->show(content_);
    }
    if (older_) {
        older_->show(content_);
    }
}

void LinuxStatusItem::setImage(std::string_view symbolName, std::string_view /*accessibilityDescription*/) {
    if (symbolName != content_.symbol) {
        content_.symbol = symbolName;
        showSoon();
    }
}

void LinuxStatusItem::setLevel(std::int64_t percent) {
    if (percent != content_.level) {
        content_.level = percent;
        showSoon();
    }
}

void LinuxStatusItem::setTitle(std::string_view title) {
    if (auto text = trimmed(title); text != content_.title) {
        content_.title = std::move(text);
        showSoon();
    }
}

void LinuxStatusItem::setToolTip(std::string_view text) {
    if (text != content_.toolTip) {
        content_.toolTip = text;
        showSoon();
    }
}

void LinuxStatusItem::setDisplay(MenuBarDisplay display) {
    if (display != content_.display) {
        content_.display = display;
        showSoon();
    }
}

} // namespace quelby::app
