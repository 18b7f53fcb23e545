// A large figure between its sign and its unit, which follow each other from the left in every language.
import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

RowLayout {
    id: row

    property inkedText sign
    required property inkedText figure
    required property inkedText unit
    required property real size
    required property real unitSize

    baselineOffset: number.baselineOffset
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true
    Layout.fillWidth: false

    InkText {
        content: row.sign
        visible: content.present
        font.pixelSize: row.size
        font.weight: Font.Bold
        Layout.alignment: Qt.AlignBaseline
        Layout.rightMargin: -Theme.unit
    }

    FigureText {
        id: number

        content: row.figure
        font.pixelSize: row.size
        font.weight: Font.Bold
        Layout.alignment: Qt.AlignBaseline
    }

    InkText {
        content: row.unit
        font.pixelSize: row.unitSize
        Layout.alignment: Qt.AlignBaseline
    }
}
