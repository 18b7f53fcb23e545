// The panels of desktops of Wayland, on which nobody tells programs of them, as their own programs have it.
#pragma once

#include <chrono>
#include <optional>
#include <string_view>
#include <vector>

#include <QDBusConnection>
#include <QDBusPendingCall>
#include <QMargins>
#include <QRect>

namespace quelby::app {

struct EdgePanel {
    QPoint screen; // the corner of the one that it is on, in points
    Qt::Edge edge = Qt::BottomEdge;
    int depth = 0; // points

    bool operator==(const EdgePanel&) const = default;
};

// Those of one desktop. Plasma's shell is asked already when this is made, and has until the first call to answer: it needs
// its time while the session begins.
class EdgePanels {
public:
    EdgePanels(); // of the desktop that this session is of

    // Of Plasma's shell on this bus, with so much patience for an answer in front of a person who waits.
    EdgePanels(const QDBusConnection& plasma, std::chrono::milliseconds patience);

    // As they are now. As they were when the desktop does not answer soon; none where it never has, or is none of those
    // below.
    [[nodiscard]] const std::vector<EdgePanel>& present();

private:
    void askPlasma(std::chrono::milliseconds patience);
    void hearPlasma();

    std::optional<QDBusConnection> plasma_; // none on other desktops
    std::chrono::milliseconds patience_;
    std::optional<QDBusPendingCall> question_; // as long as it is open
    std::vector<EdgePanel> known_;
};

// From the answer of Plasma's shell to a script: a line for each panel, with its screen's corner, its edge and its depth
// ("0 0 bottom 44"). What is not understood is left out.
[[nodiscard]] std::vector<EdgePanel> plasmaPanels(std::string_view answer);

// From Sway's list of workspaces and its list of outputs, in JSON: what a workspace that is shown leaves of its output, but
// for the gaps that are around it on all sides.
[[nodiscard]] std::vector<EdgePanel> swayPanels(std::string_view workspaces, std::string_view outputs);

// By those panels, of a screen in points.
[[nodiscard]] QMargins reservedBy(const std::vector<EdgePanel>& panels, QRect screen);

} // namespace quelby::app
