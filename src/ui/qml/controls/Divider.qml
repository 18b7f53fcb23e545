import QtQuick
import QtQuick.Layouts
import Quelby

Rectangle {
    implicitHeight: Theme.hairline
    color: Theme.divider
    Layout.fillWidth: true
}
