// The cards in their order.
import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

ColumnLayout {
    id: cards

    required property DashboardModel dashboard

    signal energyWanted

    spacing: Theme.viewSpacing

    ChargeLimitCard {
        visible: content.present
        content: cards.dashboard.chargeLimit
        Layout.fillWidth: true
        onToggled: enabled => cards.dashboard.toggleChargeLimit(enabled)
        onLimitChosen: percent => cards.dashboard.setChargeLimit(percent)
        onInstallWanted: cards.dashboard.installDaemon()
    }

    PowerBadge {
        content: cards.dashboard.powerBadge
        Layout.fillWidth: true
    }

    BatteryCard {
        visible: content.present
        content: cards.dashboard.battery
        Layout.fillWidth: true
    }

    ComponentCard {
        content: cards.dashboard.components
        Layout.fillWidth: true
    }

    ProcessCard {
        content: cards.dashboard.processes
        Layout.fillWidth: true
    }

    TrendCard {
        visible: content.present
        content: cards.dashboard.trend
        Layout.fillWidth: true
    }

    HistoryCard {
        content: cards.dashboard.history
        Layout.fillWidth: true
        onRangeChosen: index => cards.dashboard.selectHistoryRange(index)
        onEnergyWanted: cards.energyWanted()
    }

    EfficiencyCard {
        content: cards.dashboard.efficiency
        Layout.fillWidth: true
    }

    BatteryDetailsCard {
        visible: content.present
        content: cards.dashboard.details
        Layout.fillWidth: true
    }
}
