// One button of a row, of which one is selected.
import QtQuick
import QtQuick.Templates as T
import Quelby
import Quelby.Bridge

T.RadioButton {
    id: button

    required property oneChoice choice
    property real size: Theme.smallSize

    checked: choice.selected
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    Accessible.name: choice.text
    Accessible.ignored: !enabled
    Accessible.checkable: true
    Accessible.onPressAction: clicked()
    Accessible.onToggleAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Text {
        text: button.choice.text
        color: button.choice.selected ? Theme.onFill
                                      : Theme.inks[button.pressed || button.hovered ? Ink.Primary : Ink.Secondary]
        font.family: Theme.family
        font.pixelSize: button.size
        font.weight: Font.Medium
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }

    background: Rectangle {
        radius: Theme.controlRadius
        color: button.choice.selected ? Theme.fills[Ink.Accent]
                                      : button.pressed || button.hovered ? Theme.controlPressed : Theme.control

        FocusRing { visible: button.visualFocus }
    }
}
