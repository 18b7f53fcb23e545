pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

CardChrome {
    id: card

    required property powerBadgeContent content

    name: content.caption.text
    spacing: Theme.unit

    RowLayout {
        spacing: 2 * Theme.unit

        Symbol {
            content: card.content.symbol
            size: Theme.title3Size
            Layout.alignment: Qt.AlignBaseline
            baselineOffset: height - Theme.unit
        }

        FigureWithUnit {
            sign: card.content.sign
            figure: card.content.figure
            unit: card.content.unit
            size: Theme.hugeSize
            unitSize: Theme.title2Size
            spacing: 2 * Theme.unit
            Layout.alignment: Qt.AlignBaseline
        }
    }

    InkText {
        content: card.content.caption
        Layout.fillWidth: true
    }

    RowLayout {
        spacing: 6 * Theme.unit
        visible: card.content.extra.length > 0
        Layout.topMargin: Theme.unit

        Repeater {
            model: card.content.extra.length

            SymbolLabel {
                required property int index

                content: card.content.extra.at(index)
                size: Theme.caption2Size
            }
        }
    }
}
