pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

CardChrome {
    id: card

    required property detailsContent content

    name: content.title.text

    CardTitle {
        symbol: card.content.symbol
        title: card.content.title
    }

    Repeater {
        model: card.content.rows.length

        ColumnLayout {
            id: entry

            required property int index

            spacing: 4 * Theme.unit
            Layout.fillWidth: true

            Divider { visible: entry.index > 0 }

            DetailRow {
                content: card.content.rows.at(entry.index)
                Layout.fillWidth: true
            }
        }
    }
}
