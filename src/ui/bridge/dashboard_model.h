// The monitor as QML sees it: what every card says, ready to be bound, and the operations that the controls
// ask for.
//
// However many fields change in one turn of the event loop, each card is made anew once, after it, and only
// the cards that came out different notify. While nobody watches, nothing is observed, made or notified.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QObject>
#include <qqmlintegration.h>

#include "monitor/power_monitor.h"
#include "ui/bridge/card_values.h"
#include "ui/bridge/settings_values.h"

namespace quelby {

// What the dashboard asks of the program around it.
struct DashboardActions {
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

    Q_PROPERTY(bool hasBattery READ hasBattery NOTIFY hasBatteryChanged)
    Q_PROPERTY(bool hasTrend READ hasTrend NOTIFY hasTrendChanged)
    Q_PROPERTY(quelby::HeaderValue header READ header NOTIFY headerChanged)
    Q_PROPERTY(quelby::ChargeLimitValue chargeLimit READ chargeLimit NOTIFY chargeLimitChanged)
    Q_PROPERTY(quelby::PowerBadgeValue powerBadge READ powerBadge NOTIFY powerBadgeChanged)
    Q_PROPERTY(quelby::BatteryValue battery READ battery NOTIFY batteryChanged)
    Q_PROPERTY(quelby::ComponentsValue components READ components NOTIFY componentsChanged)
    Q_PROPERTY(quelby::ProcessesValue processes READ processes NOTIFY processesChanged)
    Q_PROPERTY(quelby::TrendValue trend READ trend NOTIFY trendChanged)
    Q_PROPERTY(quelby::HistoryValue history READ history NOTIFY historyChanged)
    Q_PROPERTY(quelby::EfficiencyValue efficiency READ efficiency NOTIFY efficiencyChanged)
    Q_PROPERTY(quelby::DetailsValue details READ details NOTIFY detailsChanged)
    Q_PROPERTY(quelby::SettingsValue settings READ settings NOTIFY settingsChanged)
    Q_PROPERTY(quelby::LabelValue quitButton READ quitButton CONSTANT)

    Q_PROPERTY(quelby::DialogValue chargingTip READ chargingTip CONSTANT)
    Q_PROPERTY(quelby::DialogValue uninstallConfirmation READ uninstallConfirmation CONSTANT)
    Q_PROPERTY(bool shouldShowChargingTip READ shouldShowChargingTip WRITE setShouldShowChargingTip NOTIFY
                   shouldShowChargingTipChanged)

public:
    // The clock outlives the model.
    DashboardModel(std::shared_ptr<PowerMonitor> monitor, Clock& clock, DashboardActions actions,
                   QObject* parent = nullptr);

    [[nodiscard]] bool isWatched() const { return !subscriptions_.empty(); }

    void setWatched(bool watched);

    [[nodiscard]] bool areSettingsShown() const { return settingsShown_; }

    void setSettingsShown(bool shown);

    [[nodiscard]] bool hasBattery() const { return hasBattery_; }

    [[nodiscard]] bool hasTrend() const { return hasTrend_; }

    [[nodiscard]] HeaderValue header() const { return header_; }

    [[nodiscard]] ChargeLimitValue chargeLimit() const { return chargeLimit_; }

    [[nodiscard]] PowerBadgeValue powerBadge() const { return powerBadge_; }

    [[nodiscard]] BatteryValue battery() const { return battery_; }

    [[nodiscard]] ComponentsValue components() const { return components_; }

    [[nodiscard]] ProcessesValue processes() const { return processes_; }

    [[nodiscard]] TrendValue trend() const { return trend_; }

    [[nodiscard]] HistoryValue history() const { return history_; }

    [[nodiscard]] EfficiencyValue efficiency() const { return efficiency_; }

    [[nodiscard]] DetailsValue details() const { return details_; }

    [[nodiscard]] SettingsValue settings() const { return settings_; }

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
    Q_INVOKABLE void setLaunchAtLogin(bool enabled);
    Q_INVOKABLE void selectMenuBarDisplay(int index);
    Q_INVOKABLE void setAutoCalibrate(bool enabled);
    Q_INVOKABLE void selectCalibrationInterval(int index); // switches the calibration on as well
    Q_INVOKABLE void fullUninstall();                      // and quits
    Q_INVOKABLE void openBatterySettings();
    Q_INVOKABLE void quit();

Q_SIGNALS:
    void watchedChanged();
    void settingsShownChanged();
    void hasBatteryChanged();
    void hasTrendChanged();
    void headerChanged();
    void chargeLimitChanged();
    void powerBadgeChanged();
    void batteryChanged();
    void componentsChanged();
    void processesChanged();
    void trendChanged();
    void historyChanged();
    void efficiencyChanged();
    void detailsChanged();
    void settingsChanged();
    void shouldShowChargingTipChanged();

private:
    using Changed = void (DashboardModel::*)();

    void subscribe();
    void refreshLater();
    void refresh();
    void refreshDashboard();
    void refreshSettings();

    template <typename T>
    void renew(T& held, T coming, Changed changed);

    std::shared_ptr<PowerMonitor> monitor_;
    Clock& clock_;
    DashboardActions actions_;
    std::vector<Subscription> subscriptions_; // none while nobody watches
    bool refreshing_ = false;                 // at the end of this turn
    bool settingsShown_ = false;
    bool hasBattery_ = false;
    bool hasTrend_ = false;
    bool shouldShowChargingTip_ = false;
    HeaderValue header_;
    ChargeLimitValue chargeLimit_;
    PowerBadgeValue powerBadge_;
    BatteryValue battery_;
    ComponentsValue components_;
    ProcessesValue processes_;
    TrendValue trend_;
    HistoryValue history_;
    EfficiencyValue efficiency_;
    DetailsValue details_;
    SettingsValue settings_;
};

} // namespace quelby
