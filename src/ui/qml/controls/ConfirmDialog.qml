// A question over the whole view: nothing else can be done until it is answered.
import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

FocusScope {
    id: dialog

    required property dialogContent content
    property bool shown: false
    property Item focusedBefore: null // and again afterwards
    property real cornerRadius: 0 // of the view

    signal accepted
    signal dismissed // after either answer

    function answer(yes: bool) {
        if (yes) {
            accepted()
        }
        dismissed()
    }

    visible: shown
    focus: shown
    Accessible.role: Accessible.Dialog
    Accessible.name: content.title
    Accessible.description: content.message
    Keys.onEscapePressed: answer(false)
    onShownChanged: {
        if (shown) {
            focusedBefore = Window.activeFocusItem
            cancel.forceActiveFocus(Qt.PopupFocusReason)
        } else {
            focusedBefore?.forceActiveFocus(Qt.PopupFocusReason)
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: dialog.cornerRadius
        color: Theme.scrim
    }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.AllButtons
        onWheel: wheel => wheel.accepted = true
    }

    Rectangle {
        anchors.centerIn: parent
        width: parent.width - 4 * Theme.viewPadding
        height: column.implicitHeight + 2 * Theme.viewPadding
        radius: Theme.cardRadius
        color: Theme.panel

        ColumnLayout {
            id: column

            anchors.fill: parent
            anchors.margins: Theme.viewPadding
            spacing: 5 * Theme.unit

            Text {
                text: dialog.content.title
                color: Theme.inks[Ink.Primary]
                font.family: Theme.family
                font.pixelSize: Theme.title3Size
                font.weight: Font.DemiBold
                textFormat: Text.PlainText
                horizontalAlignment: Text.AlignLeft // said, so that it is mirrored
                wrapMode: Text.WordWrap
                Layout.fillWidth: true
            }

            Text {
                text: dialog.content.message
                color: Theme.inks[Ink.Secondary]
                font.family: Theme.family
                font.pixelSize: Theme.bodySize
                textFormat: Text.PlainText
                horizontalAlignment: Text.AlignLeft // said, so that it is mirrored
                wrapMode: Text.WordWrap
                Layout.fillWidth: true
            }

            RowLayout {
                spacing: 4 * Theme.unit
                Layout.topMargin: 2 * Theme.unit

                Item { Layout.fillWidth: true }

                ActionButton {
                    id: cancel

                    label: dialog.content.cancel
                    onClicked: dialog.answer(false)
                    Layout.fillWidth: true
                    Layout.maximumWidth: Math.ceil(implicitWidth)
                    KeyNavigation.tab: action
                    KeyNavigation.backtab: action
                }

                ActionButton {
                    id: action

                    label: dialog.content.action
                    ink: Theme.onFill
                    surface: dialog.content.destructive ? Theme.destructive : Theme.fills[Ink.Accent]
                    onClicked: dialog.answer(true)
                    Layout.fillWidth: true
                    Layout.maximumWidth: Math.ceil(implicitWidth)
                    KeyNavigation.tab: cancel
                    KeyNavigation.backtab: cancel
                }
            }
        }
    }
}
