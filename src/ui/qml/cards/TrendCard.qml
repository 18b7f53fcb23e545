import QtQuick
import QtQuick.Layouts
import Quelby
import Quelby.Bridge

CardChrome {
    id: card

    required property trendContent content

    name: content.title.text

    CardTitle {
        symbol: card.content.symbol
        title: card.content.title

        InkText { content: card.content.now }
    }

    ChartFrame {
        implicitHeight: 30 * Theme.unit
        name: card.content.title.text
        count: card.content.samples.length

        chart: SparklineView {
            samples: card.content.samples
            dotColor: Theme.fill(dotInk)
            areaColors: Theme.trendArea
        }
    }

    RowLayout {
        InkText {
            content: card.content.min
            font.pixelSize: Theme.smallSize
        }

        Item { Layout.fillWidth: true }

        InkText {
            content: card.content.avg
            font.pixelSize: Theme.smallSize
        }

        Item { Layout.fillWidth: true }

        InkText {
            content: card.content.max
            font.pixelSize: Theme.smallSize
        }
    }
}
