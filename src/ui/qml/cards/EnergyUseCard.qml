pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

CardChrome {
    id: card

    required property energyUseContent content

    signal rangeChosen(int index)

    name: content.title.text
    spacing: 5 * Theme.unit

    CardTitle {
        symbol: card.content.symbol
        title: card.content.title

        InkText { content: card.content.total }
    }

    ChoiceRow {
        choices: card.content.ranges
        onChosen: index => card.rangeChosen(index)
    }

    InkText {
        content: card.content.placeholder
        visible: content.present
    }

    Repeater {
        model: card.content.rows.length

        EnergyRow {
            required property int index

            content: card.content.rows.at(index)
            Layout.fillWidth: true
        }
    }

    InkText {
        content: card.content.footnote
        font.pixelSize: Theme.smallSize
        wrapMode: Text.WordWrap
        Layout.fillWidth: true
    }
}
