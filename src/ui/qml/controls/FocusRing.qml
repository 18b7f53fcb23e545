// Shows where the keyboard is.
import QtQuick
import Quelby

Rectangle {
    property real around: Theme.unit

    anchors.fill: parent
    anchors.margins: -around
    radius: Theme.controlRadius + around
    color: "transparent"
    border.color: Theme.focus
    border.width: Theme.focusWidth
}
