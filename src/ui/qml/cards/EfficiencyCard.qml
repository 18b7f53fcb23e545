import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

CardChrome {
    id: card

    required property efficiencyContent content

    name: content.title.text

    CardTitle {
        symbol: card.content.symbol
        title: card.content.title
    }

    RowLayout {
        spacing: Theme.unit

        FigureText {
            content: card.content.score
            font.pixelSize: Theme.scoreSize
            font.weight: Font.Bold
            Layout.alignment: Qt.AlignBaseline
        }

        InkText {
            content: card.content.outOf
            Layout.alignment: Qt.AlignBaseline
        }

        Item { Layout.fillWidth: true }

        ColumnLayout {
            spacing: 0

            Text {
                text: card.content.stars
                color: Theme.ink(card.content.score.color)
                font.family: Theme.starFamily
                font.pixelSize: Theme.title3Size
                textFormat: Text.PlainText
                Layout.alignment: Qt.AlignRight
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            InkText {
                content: card.content.rating
                font.weight: Font.DemiBold
                Layout.alignment: Qt.AlignRight
            }
        }
    }

    SymbolLabel {
        content: card.content.advice
        wraps: true
        Layout.fillWidth: true
    }
}
