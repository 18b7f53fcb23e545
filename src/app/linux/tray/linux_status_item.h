#pragma once

#include <optional>

#include <QDBusConnection>

#include "app/linux/tray/status_notifier_item.h"
#include "app/linux/tray/status_notifier_watcher.h"
#include "app/linux/tray/xembed_item.h"
#include "app/status_item.h"

namespace quelby::app {

// The status item wherever this desktop shows one: with a host of the session bus if there is one, otherwise
// in a tray of the older kind. Hosts may come and go.
class LinuxStatusItem final : public StatusItem {
public:
    struct Listener {
        StatusNotifierItem::PressListener pressed;

        // Allows the window of the press that follows to come to the front.
        StatusNotifierItem::TokenListener tokenGiven;

        // Whether anything shows the item now. Told as soon as it is known, and at each change.
        std::function<void(bool shown)> shown;
    };

    explicit LinuxStatusItem(Listener listener);

    // The session's bus from now on, or that there is none.
    void setBus(const std::optional<QDBusConnection>& bus);

    // A tray of the older kind may have come.
    void lookForOlderTray();

    // Who decides now what the panel looks like.
    [[nodiscard]] PanelStyle panelStyle() const;

    // What is drawn is drawn so that it can be read there.
    void setPanel(const PanelClues& clues);

    [[nodiscard]] bool hasButton() const override { return true; }

    void setActions(StatusItemActions actions) override { actions_ = std::move(actions); }

    void setImage(std::string_view symbolName, std::string_view accessibilityDescription) override;
    void setLevel(std::int64_t percent) override;
    void setTitle(std::string_view title) override;
    void setToolTip(std::string_view text) override;
    void setDisplay(MenuBarDisplay display) override;

private:
    void hostChanged(const std::optional<TrayHost>& host);
    void takeInk();
    void dockInOlderTray();
    void olderTrayLost();
    void showSoon();
    void show();

    Listener listener_;
    StatusItemActions actions_;
    ItemContent content_;
    PanelClues panel_;
    std::optional<TrayHost> host_;
    bool showing_ = false; // at the end of this turn
    std::optional<StatusNotifierItem> item_;
    std::unique_ptr<XEmbedItem> older_;
    std::optional<StatusNotifierWatcher> watcher_;
    QObject owner_; // with it goes what would have been done later
};

} // namespace quelby::app
