// What takes the place of the cards while a person looks at where the energy went.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

ColumnLayout {
    id: panel

    required property DashboardModel dashboard

    spacing: Theme.viewSpacing

    CardChrome {
        visible: panel.dashboard.energy.limit.present
        name: panel.dashboard.energy.limit.text.text
        Layout.fillWidth: true

        SymbolLabel { content: panel.dashboard.energy.limit }
    }

    EnergyUseCard {
        content: panel.dashboard.energy.use
        Layout.fillWidth: true
        onRangeChosen: index => panel.dashboard.selectEnergyRange(index)
    }

    PastCard {
        visible: content.present
        content: panel.dashboard.energy.sleeps
        Layout.fillWidth: true
    }

    PastCard {
        visible: content.present
        content: panel.dashboard.energy.sessions
        Layout.fillWidth: true
    }

    AgeingCard {
        visible: content.present
        content: panel.dashboard.energy.ageing
        Layout.fillWidth: true
    }
}
