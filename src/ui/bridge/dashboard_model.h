// The monitor as QML sees it: what every card says, ready to be bound, and the operations that the controls
// ask for.
//
// However many fields change in one turn of the event loop, each card is made anew once, after it, and only
// the cards that came out different notify. While nobody watches, nothing is observed, made or notified. A card that
// nobody sees comes and goes, but keeps what it says until it comes into sight, unless somebody has the dashboard
// read out.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QObject>
#include <qqmlintegration.h>

#include "monitor/power_monitor.h"
#include "ui/bridge/values.h"

// What the model has for each card: a property, which is absent while the card is not shown.
#define QUELBY_CARD_PROPERTY(kind, type, name)                                                               \
    Q_PROPERTY(quelby::type##Value name READ name NOTIFY name##Changed)
// Whether it is seen, which the view says: all are taken to be at first.
#define QUELBY_CARD_SIGHT(kind, type, name)                                                                  \
    Q_PROPERTY(bool name##InSight READ name##InSight WRITE name##InSight)
#define QUELBY_CARD_SIGHT_ACCESS(kind, type, name)                                                           \
    [[nodiscard]] bool name##InSight() const {                                                               \
        return inSight_.name;                                                                                \
    }                                                                                                        \
    void name##InSight(bool seen) {                                                                          \
        setInSight(inSight_.name, seen);                                                                     \
    }
#define QUELBY_CARD_READER(kind, type, name)                                                                 \
    [[nodiscard]] type##Value name() const {                                                                 \
        return name##_;                                                                                      \
    }
#define QUELBY_CARD_SIGNAL(kind, type, name) void name##Changed();
#define QUELBY_CARD_HELD(kind, type, name) type##Value name##_;

#define QUELBY_CARD_IN_SIGHT(kind, type, name) bool name = true;

namespace quelby {

struct CardsInSight {
    QUELBY_CARDS(QUELBY_CARD_IN_SIGHT)
};

// What the dashboard asks of the program around it.
struct ProgramActions {
    std::function<void()> quit;
    std::function<void()> openBatterySettings;
};

class DashboardModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")

    // Set by the view: whether there is anybody who could see a change, and which of its sides is shown.
    Q_PROPERTY(bool watched READ isWatched WRITE setWatched NOTIFY watchedChanged)
    Q_PROPERTY(bool settingsShown READ areSettingsShown WRITE setSettingsShown NOTIFY settingsShownChanged)
    Q_PROPERTY(bool energyShown READ isEnergyShown WRITE setEnergyShown NOTIFY energyShownChanged)

    Q_PROPERTY(quelby::HeaderValue header READ header NOTIFY headerChanged)
    QUELBY_CARDS(QUELBY_CARD_PROPERTY)
    QUELBY_CARDS(QUELBY_CARD_SIGHT)
    Q_PROPERTY(quelby::SettingsPanelValue settings READ settings NOTIFY settingsChanged)
    Q_PROPERTY(quelby::EnergyPanelValue energy READ energy NOTIFY energyChanged)
    Q_PROPERTY(quelby::LabelValue quitButton READ quitButton CONSTANT)

    Q_PROPERTY(quelby::DialogValue chargingTip READ chargingTip CONSTANT)
    Q_PROPERTY(quelby::DialogValue uninstallConfirmation READ uninstallConfirmation CONSTANT)
    Q_PROPERTY(bool shouldShowChargingTip READ shouldShowChargingTip WRITE setShouldShowChargingTip NOTIFY
                   shouldShowChargingTipChanged)

public:
    // The clock outlives the model.
    DashboardModel(std::shared_ptr<PowerMonitor> monitor, Clock& clock, ProgramActions actions,
                   QObject* parent = nullptr);

    [[nodiscard]] bool isWatched() const { return !subscriptions_.empty(); }

    void setWatched(bool watched);

    // Somebody has it read out, and comes to cards out of sight as well.
    void setReadOut(bool readOut);

    [[nodiscard]] bool areSettingsShown() const { return settingsShown_; }

    void setSettingsShown(bool shown);

    [[nodiscard]] bool isEnergyShown() const { return energyShown_; }

    // What is kept of the energy is asked for when it begins to be shown, and when another range is selected.
    void setEnergyShown(bool shown);

    [[nodiscard]] HeaderValue header() const { return header_; }

    QUELBY_CARDS(QUELBY_CARD_READER)
    QUELBY_CARDS(QUELBY_CARD_SIGHT_ACCESS)

    [[nodiscard]] SettingsPanelValue settings() const { return settings_; }

    [[nodiscard]] EnergyPanelValue energy() const { return energy_; }

    [[nodiscard]] LabelValue quitButton() const;
    [[nodiscard]] DialogValue chargingTip() const;
    [[nodiscard]] DialogValue uninstallConfirmation() const;

    [[nodiscard]] bool shouldShowChargingTip() const { return shouldShowChargingTip_; }

    void setShouldShowChargingTip(bool shown);

    Q_INVOKABLE void toggleChargeLimit(bool enabled);
    Q_INVOKABLE void setChargeLimit(double percent);
    Q_INVOKABLE void installDaemon();
    Q_INVOKABLE void uninstallDaemon();

    // What is chosen counts from 0 in the order of its buttons; a number that no button has is ignored.
    Q_INVOKABLE void selectHistoryRange(int index);
    Q_INVOKABLE void selectEnergyRange(int index);
    Q_INVOKABLE void setLaunchAtLogin(bool enabled);
    Q_INVOKABLE void selectMenuBarDisplay(int index);
    Q_INVOKABLE void setAutoCalibrate(bool enabled);
    Q_INVOKABLE void selectCalibrationInterval(int index); // switches the calibration on as well
    Q_INVOKABLE void fullUninstall();                      // and quits
    Q_INVOKABLE void openBatterySettings() const;
    Q_INVOKABLE void quit() const;

Q_SIGNALS:
    void watchedChanged();
    void settingsShownChanged();
    void energyShownChanged();
    void energyChanged();
    void headerChanged();
    QUELBY_CARDS(QUELBY_CARD_SIGNAL)
    void settingsChanged();
    void shouldShowChargingTipChanged();

private:
    using Changed = void (DashboardModel::*)();

    void subscribe();
    void refreshLater();
    void refresh();
    void refreshDashboard();
    void refreshSettings();
    void refreshEnergy();
    void loadEnergy(EnergyRange range);
    void setInSight(bool& card, bool seen);

    // Holds what is coming, if it says something else and is followed, and tells so.
    template <typename Value, typename Record>
    void renew(Value& held, Record coming, Changed changed, bool followed = true);
    template <typename Value, typename Record>
    void renew(Value& held, std::optional<Record> coming, Changed changed, bool followed = true);

    std::shared_ptr<PowerMonitor> monitor_;
    Clock& clock_;
    ProgramActions actions_;
    std::vector<Subscription> subscriptions_; // none while nobody watches
    bool refreshing_ = false;                 // at the end of this turn
    bool settingsShown_ = false;
    bool shouldShowChargingTip_ = false;
    HeaderValue header_;
    QUELBY_CARDS(QUELBY_CARD_HELD)
    CardsInSight inSight_;
    bool readOut_ = false;
    SettingsPanelValue settings_;
    bool energyShown_ = false;
    EnergyReport energyReport_;
    EnergyPanelValue energy_;
};

} // namespace quelby
