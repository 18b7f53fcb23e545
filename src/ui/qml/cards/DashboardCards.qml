// The cards in their order.
import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

ColumnLayout {
    id: cards

    required property DashboardModel dashboard

    // What is seen of the column, in points from its top.
    required property real seenTop
    required property real seenHeight

    signal energyWanted

    function sees(card: Item): bool {
        return Metrics.isInSight(card.y, card.height, Theme.cardPadding, seenTop, seenHeight)
    }

    spacing: Theme.viewSpacing

    Binding { target: cards.dashboard; property: "chargeLimitInSight"; value: cards.sees(chargeLimit) }
    Binding { target: cards.dashboard; property: "powerBadgeInSight"; value: cards.sees(powerBadge) }
    Binding { target: cards.dashboard; property: "batteryInSight"; value: cards.sees(battery) }
    Binding { target: cards.dashboard; property: "componentsInSight"; value: cards.sees(components) }
    Binding { target: cards.dashboard; property: "processesInSight"; value: cards.sees(processes) }
    Binding { target: cards.dashboard; property: "trendInSight"; value: cards.sees(trend) }
    Binding { target: cards.dashboard; property: "historyInSight"; value: cards.sees(history) }
    Binding { target: cards.dashboard; property: "efficiencyInSight"; value: cards.sees(efficiency) }
    Binding { target: cards.dashboard; property: "detailsInSight"; value: cards.sees(details) }

    ChargeLimitCard {
        id: chargeLimit

        visible: content.present
        content: cards.dashboard.chargeLimit
        Layout.fillWidth: true
        onToggled: enabled => cards.dashboard.toggleChargeLimit(enabled)
        onLimitChosen: percent => cards.dashboard.setChargeLimit(percent)
        onInstallWanted: cards.dashboard.installDaemon()
    }

    PowerBadge {
        id: powerBadge

        content: cards.dashboard.powerBadge
        Layout.fillWidth: true
    }

    BatteryCard {
        id: battery

        visible: content.present
        content: cards.dashboard.battery
        Layout.fillWidth: true
    }

    ComponentCard {
        id: components

        content: cards.dashboard.components
        Layout.fillWidth: true
    }

    ProcessCard {
        id: processes

        content: cards.dashboard.processes
        Layout.fillWidth: true
    }

    TrendCard {
        id: trend

        visible: content.present
        content: cards.dashboard.trend
        Layout.fillWidth: true
    }

    HistoryCard {
        id: history

        content: cards.dashboard.history
        Layout.fillWidth: true
        onRangeChosen: index => cards.dashboard.selectHistoryRange(index)
        onEnergyWanted: cards.energyWanted()
    }

    EfficiencyCard {
        id: efficiency

        content: cards.dashboard.efficiency
        Layout.fillWidth: true
    }

    BatteryDetailsCard {
        id: details

        visible: content.present
        content: cards.dashboard.details
        Layout.fillWidth: true
    }
}
