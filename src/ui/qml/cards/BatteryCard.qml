import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

CardChrome {
    id: card

    required property batteryContent content

    name: content.title.text
    spacing: 5 * Theme.unit

    CardTitle {
        symbol: card.content.symbol
        title: card.content.title
    }

    RowLayout {
        spacing: 4 * Theme.unit

        FigureText {
            content: card.content.level
            font.pixelSize: Theme.levelSize
            font.weight: Font.Bold
            Layout.alignment: Qt.AlignBaseline
        }

        Item { Layout.fillWidth: true }

        InkText {
            content: card.content.rate
            Layout.alignment: Qt.AlignBaseline
        }
    }

    ProportionBar {
        content: card.content.bar
        name: card.content.title.text
        graded: true
        implicitHeight: Theme.levelBarHeight
        Layout.fillWidth: true
    }

    RowLayout {
        spacing: 4 * Theme.unit

        SymbolLabel { content: card.content.time }

        Item { Layout.fillWidth: true }

        SymbolLabel {
            content: card.content.health
            symbolSize: Theme.caption2Size
        }
    }
}
