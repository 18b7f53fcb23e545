// How the battery ages, day by day.
import QtQuick
import Quelby
import Quelby.Bridge

CardChrome {
    id: card

    required property ageingContent content

    name: content.title.text

    CardTitle {
        symbol: card.content.symbol
        title: card.content.title
    }

    ChartFrame {
        visible: card.content.days.length > 1
        implicitHeight: 40 * Theme.unit
        name: card.content.title.text
        count: card.content.days.length

        chart: HealthChartView {
            days: card.content.days
            line: card.content.line
            areaColors: Theme.historyArea
        }
    }

    InkText { content: card.content.ageing }
}
