// A button that does something worth a surface.
import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

PlainButton {
    id: button

    property inkedSymbol symbol
    required property string label
    property color ink: Theme.inks[Ink.Primary]

    name: label
    surface: pressed || hovered ? Theme.controlPressed : Theme.control
    leftPadding: 6 * Theme.unit
    rightPadding: 6 * Theme.unit
    topPadding: 3 * Theme.unit
    bottomPadding: 3 * Theme.unit

    contentItem: RowLayout {
        spacing: 3 * Theme.unit

        SymbolItem {
            name: button.symbol.name
            color: button.ink
            implicitWidth: Theme.captionSize + Theme.unit
            implicitHeight: implicitWidth
            visible: name !== ""
        }

        Text {
            text: button.label
            color: button.ink
            font.family: Theme.family
            font.pixelSize: Theme.captionSize
            font.weight: Font.Medium
            textFormat: Text.PlainText
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignHCenter
            Layout.fillWidth: true
        }
    }
}
