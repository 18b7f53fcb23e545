// Sleeps or sessions, a row each.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

CardChrome {
    id: card

    required property pastContent content

    name: content.title.text

    CardTitle {
        symbol: card.content.symbol
        title: card.content.title
    }

    InkText {
        content: card.content.placeholder
        visible: content.present
    }

    Repeater {
        model: card.content.rows.length

        ColumnLayout {
            id: entry

            required property int index

            readonly property pastRowContent row: card.content.rows.at(index)

            spacing: Theme.unit
            Layout.fillWidth: true

            RowLayout {
                spacing: 4 * Theme.unit

                InkText { content: entry.row.when }

                InkText {
                    content: entry.row.what
                    Layout.fillWidth: true
                }

                InkText {
                    content: entry.row.cost
                    font.weight: Font.Medium
                }
            }

            InkText {
                content: entry.row.warning
                font.pixelSize: Theme.caption2Size
                visible: content.present
            }
        }
    }
}
