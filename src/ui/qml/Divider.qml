import QtQuick
import QtQuick.Layouts

Rectangle {
    implicitHeight: Theme.hairline
    color: Theme.divider
    Layout.fillWidth: true
}
