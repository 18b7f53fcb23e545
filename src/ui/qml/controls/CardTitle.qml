// How most cards begin: symbol, title, and room for something at the other end.
import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

RowLayout {
    id: row

    property inkedSymbol symbol
    required property inkedText title
    default property alias atTheEnd: end.data

    spacing: 3 * Theme.unit
    Layout.fillWidth: true

    Symbol {
        content: row.symbol
        size: Theme.headlineSize
        visible: row.symbol.name !== ""
    }

    InkText {
        content: row.title
        font.pixelSize: Theme.headlineSize
        font.weight: Font.DemiBold
        Layout.fillWidth: true
        Accessible.role: Accessible.Heading
    }

    RowLayout {
        id: end

        spacing: 2 * Theme.unit
    }
}
