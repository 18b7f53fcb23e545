import QtQuick
import QtQuick.Layouts

Rectangle {
    implicitHeight: Theme.unit / 2
    color: Theme.divider
    Layout.fillWidth: true
}
