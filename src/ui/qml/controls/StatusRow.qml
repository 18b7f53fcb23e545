// A dot and what it stands for.
import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

RowLayout {
    id: row

    required property statusLine content

    spacing: 3 * Theme.unit

    Rectangle {
        implicitWidth: 4 * Theme.unit
        implicitHeight: implicitWidth
        radius: implicitWidth / 2
        color: Theme.fill(row.content.dot)
    }

    InkText {
        content: row.content.text
        Layout.fillWidth: true
    }
}
