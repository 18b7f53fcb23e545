#include "app/linux/popover/edge_panels.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QDBusMessage>
#include <QGuiApplication>
#include <QString>
#include <nlohmann/json.hpp>

#include "app/linux/popover/sway_socket.h"
#include "app/linux/session/bus_silence.h"

namespace quelby::app {

namespace {

using namespace std::chrono_literals;

constexpr auto usualPatience = 150ms;
constexpr auto patienceAtFirst = 1s; // most of which goes into making the dashboard

// Those that hide keep nothing free.
const auto script = QStringLiteral("panels().forEach(function(panel) {"
                                   " var screen = screenGeometry(panel.screen);"
                                   " if (panel.hiding == 'none') print([screen.x, screen.y, panel.location,"
                                   " panel.height].join(' ') + '\\n'); })");

constexpr std::array edgesByName{
    std::pair(QLatin1String("top"), Qt::TopEdge), std::pair(QLatin1String("bottom"), Qt::BottomEdge),
    std::pair(QLatin1String("left"), Qt::LeftEdge), std::pair(QLatin1String("right"), Qt::RightEdge)};

bool onX11() {
    return QGuiApplication::platformName() == QLatin1String("xcb");
}

bool isPlasma() {
    return qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(':').contains(QLatin1String("KDE"));
}

std::vector<EdgePanel> panelsOfSway() {
    const auto sway = SwaySocket::connect();
    const auto patience = static_cast<int>(usualPatience.count());
    return sway ? swayPanels(sway->ask(SwaySocket::Request::workspaces, patience),
                             sway->ask(SwaySocket::Request::outputs, patience))
                : std::vector<EdgePanel>();
}

using Json = nlohmann::json;

// Nothing but zeros where there is no such rectangle.
QRect rectIn(const Json& object) {
    const auto rect = object.find("rect");
    if (rect == object.end() || !rect->is_object()) {
        return {};
    }
    const auto number = [&](const char* name) {
        const auto found = rect->find(name);
        return found != rect->end() && found->is_number_integer() ? found->get<int>() : 0;
    };
    return {number("x"), number("y"), number("width"), number("height")};
}

bool isShown(const Json& workspace) {
    const auto visible = workspace.find("visible");
    return visible != workspace.end() && visible->is_boolean() && visible->get<bool>();
}

Json listIn(std::string_view text) {
    auto json = Json::parse(text, nullptr, false);
    return json.is_array() ? json : Json::array();
}

void appendAround(QRect workspace, QRect output, std::vector<EdgePanel>& panels) {
    const std::array depths{workspace.top() - output.top(), output.bottom() - workspace.bottom(),
                            workspace.left() - output.left(), output.right() - workspace.right()};
    const int gap = *std::min_element(depths.begin(), depths.end());
    for (std::size_t i = 0; i < depths.size(); ++i) {
        if (depths.at(i) > gap) {
            panels.push_back({output.topLeft(), edgesByName.at(i).second, depths.at(i) - gap});
        }
    }
}

} // namespace

EdgePanels::EdgePanels() : patience_(usualPatience) {
    if (!onX11() && isPlasma() && !sessionBusIsSilent()) {
        plasma_ = QDBusConnection::sessionBus();
        askPlasma(patienceAtFirst);
    }
}

EdgePanels::EdgePanels(const QDBusConnection& plasma, std::chrono::milliseconds patience)
    : plasma_(plasma), patience_(patience) {
    askPlasma(patienceAtFirst);
}

const std::vector<EdgePanel>& EdgePanels::present() {
    if (!plasma_) {
        known_ = panelsOfSway();
        return known_;
    }
    if (!question_) {
        askPlasma(patience_);
    }
    hearPlasma();
    return known_;
}

void EdgePanels::askPlasma(std::chrono::milliseconds patience) {
    auto question = QDBusMessage::createMethodCall(
        QStringLiteral("org.kde.plasmashell"), QStringLiteral("/PlasmaShell"),
        QStringLiteral("org.kde.PlasmaShell"), QStringLiteral("evaluateScript"));
    question.setAutoStartService(false);
    question.setArguments({script});
    question_ = plasma_->asyncCall(question, static_cast<int>(patience.count()));
}

void EdgePanels::hearPlasma() {
    question_->waitForFinished();
    if (!question_->isError()) {
        known_ = plasmaPanels(question_->reply().arguments().value(0).toString().toStdString());
    }
    question_.reset();
}

std::vector<EdgePanel> plasmaPanels(std::string_view answer) {
    std::vector<EdgePanel> panels;
    const auto text = QString::fromUtf8(answer.data(), static_cast<qsizetype>(answer.size()));
    for (const auto& line : text.split('\n', Qt::SkipEmptyParts)) {
        const auto words = line.simplified().split(' ');
        const auto edge = std::find_if(edgesByName.begin(), edgesByName.end(),
                                       [&](const auto& known) { return known.first == words.value(2); });
        bool understood[3];
        const EdgePanel panel{
            .screen = QPoint(words.value(0).toInt(&understood[0]), words.value(1).toInt(&understood[1])),
            .edge = edge == edgesByName.end() ? Qt::BottomEdge : edge->second,
            .depth = words.value(3).toInt(&understood[2])};
        const bool whole = words.size() == 4 && edge != edgesByName.end() && panel.depth > 0;
        if (whole &&
            std::all_of(std::begin(understood), std::end(understood), [](bool each) { return each; })) {
            panels.push_back(panel);
        }
    }
    return panels;
}

std::vector<EdgePanel> swayPanels(std::string_view workspaces, std::string_view outputs) {
    std::vector<EdgePanel> panels;
    const auto screens = listIn(outputs);
    for (const auto& workspace : listIn(workspaces)) {
        if (!workspace.is_object() || !isShown(workspace)) {
            continue;
        }
        const QRect area = rectIn(workspace);
        for (const auto& output : screens) {
            const QRect screen = output.is_object() ? rectIn(output) : QRect();
            if (!area.isEmpty() && screen.contains(area)) {
                appendAround(area, screen, panels);
            }
        }
    }
    return panels;
}

QMargins reservedBy(const std::vector<EdgePanel>& panels, QRect screen) {
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
