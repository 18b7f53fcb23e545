pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

CardChrome {
    id: card

    required property processesContent content

    name: content.title.text
    spacing: 3 * Theme.unit

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

        ProcessRow {
            required property int index

            content: card.content.rows.at(index)
            Layout.fillWidth: true
        }
    }
}
