import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

ColumnLayout {
    id: badge

    required property statBadgeContent content

    spacing: 0
    Layout.fillWidth: true
    Layout.preferredWidth: 1 // all of one width

    FigureText {
        content: badge.content.value
        font.pixelSize: Theme.headlineSize
        font.weight: Font.Bold
        horizontalAlignment: Text.AlignHCenter
        Layout.fillWidth: true
    }

    InkText {
        content: badge.content.label
        font.pixelSize: Theme.smallSize
        horizontalAlignment: Text.AlignHCenter
        Layout.fillWidth: true
    }
}
