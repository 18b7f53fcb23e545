import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

RowLayout {
    id: row

    required property componentRowContent content
    property bool total: false

    spacing: 4 * Theme.unit

    InkText {
        content: row.content.label
        font.pixelSize: Theme.smallSize
        font.weight: row.total ? Font.DemiBold : Font.Normal
        Layout.preferredWidth: 18 * Theme.unit
    }

    ProportionBar {
        content: row.content.bar
        name: row.content.label.text
        muted: !row.total
        Layout.fillWidth: true
    }

    FigureText {
        content: row.content.figure
        font.weight: row.total ? Font.DemiBold : Font.Medium
        horizontalAlignment: Text.AlignRight
        Layout.preferredWidth: 19 * Theme.unit
    }

    InkText {
        content: row.content.detail
        font.pixelSize: Theme.smallSize
        Layout.preferredWidth: 27 * Theme.unit
    }
}
