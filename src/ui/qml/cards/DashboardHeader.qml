import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

RowLayout {
    id: header

    required property headerContent content
    required property bool inSettings
    property bool inEnergy: false
    readonly property bool leadsBack: inSettings || inEnergy

    signal settingsToggled
    signal energyClosed

    function toggle() {
        if (inEnergy) {
            energyClosed()
        } else {
            settingsToggled()
        }
    }

    spacing: 4 * Theme.unit

    Symbol {
        content: header.content.symbol
        size: Theme.title2Size
        visible: !header.leadsBack
    }

    PlainButton {
        id: back

        name: Words.back
        visible: header.leadsBack
        padding: Theme.unit
        onClicked: header.toggle()

        contentItem: Symbol {
            content: header.content.symbol
            size: Theme.title3Size
            rotation: back.mirrored ? 180 : 0
        }
    }

    InkText {
        content: header.content.title
        font.pixelSize: Theme.headlineSize
        font.weight: Font.DemiBold
        Layout.fillWidth: true
        Accessible.role: Accessible.Heading
    }

    InkText {
        content: header.content.clock
        visible: content.present
        Accessible.role: Accessible.Clock
    }

    PlainButton {
        name: header.inEnergy ? Words.closeEnergy : header.inSettings ? Words.closeSettings : Words.settings
        padding: Theme.unit
        onClicked: header.toggle()

        contentItem: Symbol {
            content: header.content.toggle
            size: Theme.title3Size
        }
    }
}
