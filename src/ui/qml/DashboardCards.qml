// The cards in their order.
import QtQuick
import QtQuick.Layouts
import Quelby.Bridge

ColumnLayout {
    id: cards

    required property DashboardModel monitor

    spacing: Theme.viewSpacing

    ChargeLimitCard {
        visible: content.present
        content: cards.monitor.chargeLimit
        Layout.fillWidth: true
        onToggled: enabled => cards.monitor.toggleChargeLimit(enabled)
        onLimitChosen: percent => cards.monitor.setChargeLimit(percent)
        onInstallWanted: cards.monitor.installDaemon()
    }

    PowerBadge {
        content: cards.monitor.powerBadge
        Layout.fillWidth: true
    }

    BatteryCard {
        visible: content.present
        content: cards.monitor.battery
        Layout.fillWidth: true
    }

    ComponentCard {
        content: cards.monitor.components
        Layout.fillWidth: true
    }

    ProcessCard {
        content: cards.monitor.processes
        Layout.fillWidth: true
    }

    TrendCard {
        visible: content.present
        content: cards.monitor.trend
        Layout.fillWidth: true
    }

    HistoryCard {
        content: cards.monitor.history
        Layout.fillWidth: true
        onRangeChosen: index => cards.monitor.selectHistoryRange(index)
    }

    EfficiencyCard {
        content: cards.monitor.efficiency
        Layout.fillWidth: true
    }

    BatteryDetailsCard {
        visible: content.present
        content: cards.monitor.details
        Layout.fillWidth: true
    }
}
