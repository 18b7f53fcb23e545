import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

RowLayout {
    id: header

    required property headerContent content
    required property bool inSettings

    signal settingsToggled

    spacing: 4 * Theme.unit

    Symbol {
        content: header.content.symbol
        size: Theme.title2Size
        visible: !header.inSettings
    }

    PlainButton {
        id: back

        name: Words.back
        visible: header.inSettings
        padding: Theme.unit
        onClicked: header.settingsToggled()

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
        name: header.inSettings ? Words.closeSettings : Words.settings
        padding: Theme.unit
        onClicked: header.settingsToggled()

        contentItem: Symbol {
            content: header.content.toggle
            size: Theme.title3Size
        }
    }
}
