import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

RowLayout {
    id: row

    required property processRowContent content

    spacing: 2 * Theme.unit

    InkText {
        content: row.content.position
        Layout.preferredWidth: 9 * Theme.unit
    }

    InkText {
        content: row.content.name
        font.pixelSize: Theme.captionSize
        Layout.preferredWidth: 64 * Theme.unit
    }

    InkText {
        content: row.content.cpu
        font.weight: Font.Medium
        horizontalAlignment: Text.AlignRight
        Layout.preferredWidth: 48 * Theme.unit
    }

    Item { Layout.fillWidth: true }

    InkText {
        content: row.content.watts
        font.pixelSize: Theme.smallSize
        horizontalAlignment: Text.AlignRight
        Layout.preferredWidth: 15 * Theme.unit
    }
}
