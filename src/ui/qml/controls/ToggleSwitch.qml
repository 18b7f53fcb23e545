// A switch that shows what is, and only asks to be turned: whether it is, is for others to decide.
import QtQuick
import QtQuick.Templates as T
import Quelby
import Quelby.Bridge

T.CheckBox {
    id: toggle

    required property string name // for those who cannot see it
    required property bool on

    signal turned(bool on)

    checked: on
    nextCheckState: () => checkState
    implicitWidth: 17 * Theme.unit
    implicitHeight: 10 * Theme.unit
    Accessible.name: name
    Accessible.ignored: !enabled
    Accessible.checkable: true
    Accessible.onPressAction: clicked()
    Accessible.onToggleAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    onClicked: turned(!on)

    background: Rectangle {
        radius: height / 2
        color: toggle.on ? Theme.fills[Ink.Green] : Theme.controlPressed

        Behavior on color { ColorAnimation { duration: Theme.fade } }

        FocusRing {
            visible: toggle.visualFocus
            radius: height / 2
        }
    }

    contentItem: Item {
        Rectangle {
            readonly property real gap: Theme.unit
            readonly property bool atTheRight: toggle.on !== toggle.mirrored

            x: atTheRight ? parent.width - width - gap : gap
            y: gap
            width: parent.height - 2 * gap
            height: width
            radius: height / 2
            color: Theme.knob

            Behavior on x { NumberAnimation { duration: Theme.fade } }
        }
    }
}
