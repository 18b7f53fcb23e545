pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

CardChrome {
    id: card

    required property calibrationContent content

    signal autoCalibrateTurned(bool on)
    signal intervalChosen(int index)

    name: content.title.text
    spacing: 5 * Theme.unit

    CardTitle {
        symbol: card.content.symbol
        title: card.content.title
    }

    OptionRow {
        option: card.content.autoCalibrate
        onTurned: on => card.autoCalibrateTurned(on)
    }

    InkText {
        content: card.content.frequency.title
        font.pixelSize: Theme.bodySize
    }

    ChoiceRow {
        choices: card.content.frequency.choices
        size: Theme.caption2Size
        horizontalPadding: 4 * Theme.unit
        verticalPadding: 2 * Theme.unit
        onChosen: index => card.intervalChosen(index)
    }

    Repeater {
        model: card.content.dates.length

        SymbolLabel {
            required property int index

            content: card.content.dates.at(index)
            wraps: true
            Layout.fillWidth: true
        }
    }
}
