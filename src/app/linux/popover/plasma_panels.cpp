#include "app/linux/popover/plasma_panels.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QString>

namespace quelby::app {

namespace {

constexpr int patience = 150; // ms

// Those that hide keep nothing free.
const auto script = QStringLiteral("panels().forEach(function(panel) {"
                                   " var screen = screenGeometry(panel.screen);"
                                   " if (panel.hiding == 'none') print([screen.x, screen.y, panel.location,"
                                   " panel.height].join(' ') + '\\n'); })");

constexpr std::array edges{
    std::pair(QLatin1String("top"), Qt::TopEdge), std::pair(QLatin1String("bottom"), Qt::BottomEdge),
    std::pair(QLatin1String("left"), Qt::LeftEdge), std::pair(QLatin1String("right"), Qt::RightEdge)};

} // namespace

std::vector<PlasmaPanel> plasmaPanels() {
    auto question = QDBusMessage::createMethodCall(
        QStringLiteral("org.kde.plasmashell"), QStringLiteral("/PlasmaShell"),
        QStringLiteral("org.kde.PlasmaShell"), QStringLiteral("evaluateScript"));
    question.setAutoStartService(false);
    question.setArguments({script});
    const auto answer = QDBusConnection::sessionBus().call(question, QDBus::Block, patience);
    return plasmaPanelsIn(answer.arguments().value(0).toString().toStdString());
}

std::vector<PlasmaPanel> plasmaPanelsIn(std::string_view answer) {
    std::vector<PlasmaPanel> panels;
    const auto text = QString::fromUtf8(answer.data(), static_cast<qsizetype>(answer.size()));
    for (const auto& line : text.split('\n', Qt::SkipEmptyParts)) {
        const auto words = line.simplified().split(' ');
        const auto edge = std::find_if(edges.begin(), edges.end(),
                                       [&](const auto& known) { return known.first == words.value(2); });
        bool understood[3];
        const PlasmaPanel panel{
            .screen = QPoint(words.value(0).toInt(&understood[0]), words.value(1).toInt(&understood[1])),
            .edge = edge == edges.end() ? Qt::BottomEdge : edge->second,
            .depth = words.value(3).toInt(&understood[2])};
        const bool whole = words.size() == 4 && edge != edges.end() && panel.depth > 0;
        if (whole &&
            std::all_of(std::begin(understood), std::end(understood), [](bool each) { return each; })) {
            panels.push_back(panel);
        }
    }
    return panels;
}

QMargins reservedBy(const std::vector<PlasmaPanel>& panels, QRect screen) {
    QMargins all;
    for (const auto& panel : panels) {
        if (panel.screen != screen.topLeft()) {
            continue;
        }
        const int depth = panel.depth;
        all =
            all | QMargins(panel.edge == Qt::LeftEdge ? depth : 0, panel.edge == Qt::TopEdge ? depth : 0,
                           panel.edge == Qt::RightEdge ? depth : 0, panel.edge == Qt::BottomEdge ? depth : 0);
    }
    return all;
}

} // namespace quelby::app
