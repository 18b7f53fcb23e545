pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

CardChrome {
    id: card

    required property historyContent content

    signal rangeChosen(int index)
    signal energyWanted

    name: content.title.text
    spacing: 5 * Theme.unit

    CardTitle {
        symbol: card.content.symbol
        title: card.content.title

        // Looks like a text until somebody comes near.
        PlainButton {
            name: Words.energyButtonName(card.content.today.text)
            leftInset: -2 * Theme.unit
            rightInset: leftInset
            topInset: -Theme.unit
            bottomInset: topInset
            onClicked: card.energyWanted()

            contentItem: InkText {
                content: card.content.today
                silent: true
            }
        }
    }

    ChoiceRow {
        choices: card.content.ranges
        size: Theme.caption2Size
        horizontalPadding: 6 * Theme.unit
        onChosen: index => card.rangeChosen(index)
    }

    ColumnLayout {
        spacing: 3 * Theme.unit
        visible: card.content.placeholder.present
        Layout.alignment: Qt.AlignHCenter
        Layout.preferredHeight: 50 * Theme.unit

        Item { Layout.fillHeight: true }

        Symbol {
            content: card.content.placeholder.symbol
            size: Theme.title2Size + Theme.unit
            Layout.alignment: Qt.AlignHCenter
        }

        InkText {
            content: card.content.placeholder.text
            Layout.alignment: Qt.AlignHCenter
        }

        Item { Layout.fillHeight: true }
    }

    ChartFrame {
        visible: !card.content.placeholder.present
        implicitHeight: 50 * Theme.unit
        name: card.content.title.text
        count: card.content.points.length

        chart: HistoryChartView {
            points: card.content.points
            areaColors: Theme.historyArea
        }
    }

    RowLayout {
        spacing: 0
        Layout.fillWidth: true

        Repeater {
            model: card.content.badges.length

            StatBadge {
                required property int index

                content: card.content.badges.at(index)
            }
        }
    }
}
