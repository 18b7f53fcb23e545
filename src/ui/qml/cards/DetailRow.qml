import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

RowLayout {
    id: row

    required property detailRowContent content

    spacing: 2 * Theme.unit

    Item {
        implicitWidth: 8 * Theme.unit
        implicitHeight: symbol.implicitHeight

        Symbol {
            id: symbol

            anchors.centerIn: parent
            content: row.content.symbol
        }
    }

    InkText {
        content: row.content.label
        Layout.fillWidth: true
    }

    InkText {
        content: row.content.value
        font.weight: Font.Medium
    }

    InkText {
        content: row.content.note
        font.pixelSize: Theme.smallSize
        horizontalAlignment: Text.AlignRight
        visible: content.present
    }
}
