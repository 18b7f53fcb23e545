import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

RowLayout {
    id: row

    required property energyRowContent content

    spacing: 4 * Theme.unit

    InkText {
        content: row.content.name
        Layout.preferredWidth: 60 * Theme.unit
    }

    ProportionBar {
        content: row.content.bar
        name: row.content.name.text
        Layout.fillWidth: true
    }

    InkText {
        content: row.content.energy
        font.weight: Font.Medium
        horizontalAlignment: Text.AlignRight
        Layout.preferredWidth: 28 * Theme.unit
    }

    InkText {
        content: row.content.share
        horizontalAlignment: Text.AlignRight
        visible: text !== ""
        Layout.preferredWidth: 19 * Theme.unit
    }
}
