#include "ui/bridge/dashboard_model.h"

#include "platform/relative_date.h"
#include "ui/presentation/cards/dialogs.h"

namespace quelby {

namespace {

// The element that a button of a row stands for; none for an index beyond the row.
template <typename Elements>
auto elementAt(const Elements& elements, int index) -> std::optional<typename Elements::value_type> {
    const bool exists = index >= 0 && static_cast<std::size_t>(index) < elements.size();
    return exists ? std::optional(elements[static_cast<std::size_t>(index)]) : std::nullopt;
}

} // namespace

DashboardModel::DashboardModel(std::shared_ptr<PowerMonitor> monitor, Clock& clock, ProgramActions actions,
                               QObject* parent)
    : QObject(parent), monitor_(std::move(monitor)), clock_(clock), actions_(std::move(actions)) {}

void DashboardModel::setWatched(bool watched) {
    if (watched == isWatched()) {
        return;
    }
    if (watched) {
        subscribe();
        if (energyShown_) {
            loadEnergy(energyReport_.range);
        }
        refresh(); // what is shown first is already up to date
    } else {
        subscriptions_.clear();
    }
    Q_EMIT watchedChanged();
}

void DashboardModel::subscribe() {
    forEachField(static_cast<PublishedFields&>(*monitor_), [this](FieldName, auto& field) {
        subscriptions_.push_back(field.observe([this](const auto&) { refreshLater(); }));
    });
}

// Observers are told before a field changes, and there are many fields.
void DashboardModel::refreshLater() {
    if (refreshing_) {
        return;
    }
    refreshing_ = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            refreshing_ = false;
            if (isWatched()) {
                refresh();
            }
        },
        Qt::QueuedConnection);
}

template <typename Value, typename Record>
void DashboardModel::renew(Value& held, Record coming, Changed changed, bool followed) {
    if (held.present() && (!followed || *held == coming)) {
        return;
    }
    held = Value(std::move(coming));
    Q_EMIT(this->*changed)();
}

template <typename Value, typename Record>
void DashboardModel::renew(Value& held, std::optional<Record> coming, Changed changed, bool followed) {
    if (coming) {
        renew(held, std::move(*coming), changed, followed);
    } else if (held.present()) {
        held = Value();
        Q_EMIT(this->*changed)();
    }
}

void DashboardModel::refresh() {
    if (shouldShowChargingTip_ != monitor_->shouldShowChargingTip.get()) {
        shouldShowChargingTip_ = !shouldShowChargingTip_;
        Q_EMIT shouldShowChargingTipChanged();
    }
    if (settingsShown_) {
        refreshSettings();
    } else if (energyShown_) {
        refreshEnergy();
    } else {
        refreshDashboard();
    }
}

void DashboardModel::refreshDashboard() {
    auto content = dashboard(*monitor_, clock_.now(), systemWords());
    renew(header_, std::move(content.header), &DashboardModel::headerChanged);
#define QUELBY_RENEW_CARD(kind, type, name)                                                                  \
    renew(name##_, std::move(content.name), &DashboardModel::name##Changed, readOut_ || inSight_.name);
    QUELBY_CARDS(QUELBY_RENEW_CARD)
#undef QUELBY_RENEW_CARD
}

void DashboardModel::refreshSettings() {
    auto content = settingsPanel(*monitor_, clock_.now(), relativeDate);
    renew(header_, content.header, &DashboardModel::headerChanged);
    renew(settings_, std::move(content), &DashboardModel::settingsChanged);
}

void DashboardModel::refreshEnergy() {
    auto content = energyPanel(energyReport_, *monitor_, monitor_->minutesToLimit());
    renew(header_, content.header, &DashboardModel::headerChanged);
    renew(energy_, std::move(content), &DashboardModel::energyChanged);
}

// Before the next frame, which is drawn in another turn.
void DashboardModel::setInSight(bool& card, bool seen) {
    if (seen && !card) {
        refreshLater();
    }
    card = seen;
}

void DashboardModel::setReadOut(bool readOut) {
    if (readOut && !readOut_) {
        refreshLater();
    }
    readOut_ = readOut;
}

void DashboardModel::loadEnergy(EnergyRange range) {
    energyReport_ = monitor_->energyReport(range);
}

void DashboardModel::setEnergyShown(bool shown) {
    if (shown == energyShown_) {
        return;
    }
    energyShown_ = shown;
    if (shown) {
        loadEnergy(energyReport_.range);
    }
    if (isWatched()) {
        refresh();
    }
    Q_EMIT energyShownChanged();
}

void DashboardModel::selectEnergyRange(int index) {
    if (const auto range = elementAt(allEnergyRanges, index)) {
        loadEnergy(*range);
        if (isWatched()) {
            refresh();
        }
    }
}

void DashboardModel::setSettingsShown(bool shown) {
    if (shown == settingsShown_) {
        return;
    }
    settingsShown_ = shown;
    if (isWatched()) {
        refresh();
    }
    Q_EMIT settingsShownChanged();
}

LabelValue DashboardModel::quitButton() const {
    return LabelValue(quelby::quitButton());
}

DialogValue DashboardModel::chargingTip() const {
    return DialogValue(quelby::chargingTip(systemWords()));
}

DialogValue DashboardModel::uninstallConfirmation() const {
    return DialogValue(quelby::uninstallConfirmation(monitor_->packageManager()));
}

void DashboardModel::setShouldShowChargingTip(bool shown) {
    monitor_->shouldShowChargingTip = shown;
}

void DashboardModel::toggleChargeLimit(bool enabled) {
    static_cast<void>(monitor_->toggleChargeLimit(enabled));
}

void DashboardModel::setChargeLimit(double percent) {
    static_cast<void>(monitor_->setChargeLimit(percent));
}

void DashboardModel::installDaemon() {
    static_cast<void>(monitor_->installDaemon());
}

void DashboardModel::uninstallDaemon() {
    static_cast<void>(monitor_->uninstallDaemon());
}

void DashboardModel::selectHistoryRange(int index) {
    if (const auto range = elementAt(allTimeRanges, index)) {
        monitor_->selectHistoryRange(*range);
    }
}

void DashboardModel::setLaunchAtLogin(bool enabled) {
    monitor_->setLaunchAtLogin(enabled);
}

void DashboardModel::selectMenuBarDisplay(int index) {
    if (const auto display = elementAt(allMenuBarDisplays, index)) {
        monitor_->menuBarDisplay = *display;
    }
}

void DashboardModel::setAutoCalibrate(bool enabled) {
    static_cast<void>(monitor_->updateCalibrationSettings(enabled, monitor_->calibrationIntervalDays));
}

void DashboardModel::selectCalibrationInterval(int index) {
    if (const auto days = elementAt(calibrationIntervals, index)) {
        static_cast<void>(monitor_->updateCalibrationSettings(true, *days));
    }
}

void DashboardModel::fullUninstall() {
    monitor_->fullUninstall(actions_.quit);
}

void DashboardModel::openBatterySettings() const {
    actions_.openBatterySettings();
}

void DashboardModel::quit() const {
    actions_.quit();
}

} // namespace quelby
