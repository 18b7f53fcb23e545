#include "app/linux/display.h"

#include <algorithm>

#include <QFileInfo>
#include <QLibraryInfo>
#include <QLoggingCategory>
#include <QStringList>

#include "app/linux/session/wayland_compositor.h"
#include "app/linux/session/x_connection.h"

namespace quelby::app {

namespace {

constexpr std::string_view xPlugin = "xcb";
constexpr std::string_view waylandPlugin = "wayland";

// With it a window can be given another role than Qt would give it.
constexpr auto windowsWithoutRole = "QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT";

// Nothing is drawn by a GPU, whose driver would take up more memory than all the rest.
constexpr auto graphics = "QT_WAYLAND_CLIENT_BUFFER_INTEGRATION";

// What stands before the first colon; after it come the plugin's own parameters.
std::string_view nameIn(std::string_view wish) {
    return wish.substr(0, wish.find(':'));
}

bool isReached(const Displays& displays, std::string_view plugin) {
    if (plugin == xPlugin) {
        return displays.x11;
    }
    return !isOfWayland(plugin) || displays.wayland.answers;
}

bool works(const Displays& displays, std::string_view plugin) {
    return !plugin.empty() && isReached(displays, plugin) && displays.hasPlugin(plugin);
}

bool anyWorks(const Displays& displays, std::string_view wishes) {
    while (!wishes.empty()) {
        const auto end = std::min(wishes.find(';'), wishes.size());
        if (works(displays, nameIn(wishes.substr(0, end)))) {
            return true;
        }
        wishes.remove_prefix(std::min(end + 1, wishes.size()));
    }
    return false;
}

QStringList pluginFolders() {
    QStringList folders = qEnvironmentVariable("QT_QPA_PLATFORM_PLUGIN_PATH").split(u':', Qt::SkipEmptyParts);
    auto parents = qEnvironmentVariable("QT_PLUGIN_PATH").split(u':', Qt::SkipEmptyParts);
    parents.append(QLibraryInfo::path(QLibraryInfo::PluginsPath));
    for (const auto& parent : parents) {
        folders.append(parent + QLatin1String("/platforms"));
    }
    return folders;
}

bool isInstalled(std::string_view plugin) {
    const bool wayland = plugin == waylandPlugin; // which is called otherwise than its file
    const auto name = wayland ? QStringLiteral("wayland-generic") : QString::fromUtf8(plugin);
    const auto folders = pluginFolders();
    return std::any_of(folders.begin(), folders.end(), [&](const QString& folder) {
        return QFileInfo::exists(folder + QLatin1String("/libq") + name + QLatin1String(".so"));
    });
}

bool reachesX() {
    int screenNumber = 0;
    return connectToX(screenNumber) != nullptr;
}

} // namespace

Result<std::string> chooseDisplay(const Displays& displays) {
    if (!displays.wanted.empty()) {
        return anyWorks(displays, displays.wanted)
                   ? Result<std::string>(displays.wanted)
                   : problem(
                         "the display that QT_QPA_PLATFORM names is not there; --headless works without one");
    }
    // An ordinary window of Wayland cannot say where it stands; one of X11 can, also on a desktop of Wayland that
    // has room for it, and one that belongs to the desktop can do so best.
    const bool native = displays.wayland.desktopWindows && works(displays, waylandPlugin);
    for (const auto plugin : {native ? waylandPlugin : xPlugin, waylandPlugin}) {
        if (works(displays, plugin)) {
            return std::string(plugin);
        }
    }
    if (displays.wayland.answers) {
        return problem("windows on Wayland need the package qt6-wayland; --headless works without a display");
    }
    return problem("there is no display; --headless works without one");
}

Result<std::string> prepareDisplay() {
    auto chosen = chooseDisplay({.wanted = qEnvironmentVariable("QT_QPA_PLATFORM").toStdString(),
                                 .x11 = reachesX(),
                                 .wayland = askWayland(),
                                 .hasPlugin = isInstalled});
    if (!chosen) {
        return chosen;
    }
    qputenv("QT_QPA_PLATFORM", chosen->c_str());
    if (isOfWayland(*chosen)) {
        qputenv(windowsWithoutRole, "1");
        qputenv(graphics, "none");
        // Of both it warns, as if they were mistakes.
        QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.wayland*.warning=false"));
    }
    return chosen;
}

bool isOfWayland(std::string_view plugin) {
    return plugin.starts_with(waylandPlugin);
}

void forgetDisplay() {
    for (const auto* const name : {windowsWithoutRole, graphics}) {
        qunsetenv(name);
    }
}

} // namespace quelby::app
