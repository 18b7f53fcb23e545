// The application as the system sees it.
#pragma once

#include <functional>
#include <memory>

namespace quelby::app {

// Neither an icon in the Dock nor menus of its own. After Qt has made its application object, which would
// otherwise have the last word.
void becomeAccessory();

// In front of whatever application is there now.
void activateApplication();

// Asks the application to end, as the system's own command does.
void terminateApplication();

struct ApplicationListener {
    std::function<void()> didFinishLaunching;
    std::function<void()> willTerminate;
};

// What an application's delegate is told, heard beside it: the delegate itself is Qt's, which needs that
// place.
class ApplicationEvents {
public:
    explicit ApplicationEvents(ApplicationListener listener);
    ApplicationEvents(const ApplicationEvents&) = delete;
    ApplicationEvents& operator=(const ApplicationEvents&) = delete;
    ~ApplicationEvents();

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace quelby::app
