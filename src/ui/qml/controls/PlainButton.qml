// A button without edges.
import QtQuick
import QtQuick.Templates as T
import Quelby

T.AbstractButton {
    id: button

    required property string name // for those who cannot see it
    property color surface: "transparent"

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    opacity: pressed ? Theme.pressedOpacity : 1
    Accessible.name: name
    Accessible.ignored: !enabled
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    background: Rectangle {
        radius: Theme.controlRadius
        color: button.hovered && button.surface.a === 0 ? Theme.control : button.surface

        FocusRing { visible: button.visualFocus }
    }
}
