// A symbol and the text beside it.
import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

RowLayout {
    id: label

    required property inkedLabel content
    property real size: Theme.captionSize
    property real symbolSize: size
    property bool wraps: false
    property bool silent: false // because somebody else says the same

    spacing: 2 * Theme.unit

    Symbol {
        content: label.content.symbol
        size: label.symbolSize
        Layout.alignment: label.wraps ? Qt.AlignTop : Qt.AlignVCenter
    }

    InkText {
        content: label.content.text
        silent: label.silent
        font.pixelSize: label.size
        wrapMode: label.wraps ? Text.WordWrap : Text.NoWrap
        Layout.fillWidth: true
        Layout.maximumWidth: label.wraps ? -1 : Math.ceil(implicitWidth)
    }
}
