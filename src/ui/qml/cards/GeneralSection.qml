import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

CardChrome {
    id: card

    required property generalContent content

    signal launchAtLoginTurned(bool on)
    signal displayChosen(int index)

    name: content.title.text
    spacing: 5 * Theme.unit

    CardTitle {
        symbol: card.content.symbol
        title: card.content.title
    }

    OptionRow {
        option: card.content.launchAtLogin
        onTurned: on => card.launchAtLoginTurned(on)
    }

    Divider {}

    ColumnLayout {
        spacing: Theme.unit

        InkText {
            content: card.content.menuBarDisplay.title
            font.pixelSize: Theme.bodySize
            Layout.fillWidth: true
        }

        InkText {
            content: card.content.menuBarDisplay.subtitle
            wrapMode: Text.WordWrap
            Layout.fillWidth: true
        }
    }

    ChoiceRow {
        choices: card.content.menuBarDisplay.choices
        onChosen: index => card.displayChosen(index)
    }
}
