pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

CardChrome {
    id: card

    required property componentsContent content

    name: content.title.text

    CardTitle { title: card.content.title }

    Repeater {
        model: card.content.rows.length

        ComponentRow {
            required property int index

            content: card.content.rows.at(index)
            Layout.fillWidth: true
        }
    }

    Divider {}

    ComponentRow {
        content: card.content.total
        total: true
        Layout.fillWidth: true
    }
}
