// A thing that can be switched on, in words, and its switch.
import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

RowLayout {
    id: row

    required property oneOption option

    signal turned(bool on)

    spacing: 4 * Theme.unit

    ColumnLayout {
        spacing: Theme.unit
        Layout.fillWidth: true

        InkText {
            content: row.option.title
            font.pixelSize: Theme.bodySize
            Layout.fillWidth: true
        }

        InkText {
            content: row.option.subtitle
            wrapMode: Text.WordWrap
            Layout.fillWidth: true
        }
    }

    ToggleSwitch {
        name: row.option.title.text
        on: row.option.enabled
        onTurned: on => row.turned(on)
    }
}
