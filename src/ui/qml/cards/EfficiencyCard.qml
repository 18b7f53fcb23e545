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

    FigureWithUnit {
        figure: card.content.score
        unit: card.content.outOf
        size: Theme.scoreSize
        unitSize: Theme.captionSize
        spacing: Theme.unit
    }

    Text {
        text: card.content.stars
        color: Theme.ink(card.content.score.color)
        font.family: Theme.starFamily
        font.pixelSize: Theme.title3Size
        textFormat: Text.PlainText
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        Accessible.ignored: !enabled
    }

    InkText {
        content: card.content.rating
        font.weight: Font.DemiBold
    }

    SymbolLabel {
        content: card.content.advice
        wraps: true
        Layout.fillWidth: true
    }
}
