// Where in the column the view is; it can be dragged.
import QtQuick
import QtQuick.Templates as T
import Quelby

T.ScrollBar {
    id: bar

    implicitWidth: 3 * Theme.unit + 2 * padding
    padding: Theme.unit
    visible: size < 1
    orientation: Qt.Vertical
    Accessible.ignored: true

    contentItem: Rectangle {
        implicitWidth: 3 * Theme.unit
        radius: width / 2
        color: Theme.controlPressed
        opacity: bar.pressed || bar.hovered ? 1 : Theme.restingOpacity
    }
}
