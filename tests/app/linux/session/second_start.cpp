// Starts as the program does, and says what it came to be; where it is the first, it stays and says when it
// is asked to show itself.
#include <iostream>

#include <QCoreApplication>

#include "app/linux/session/session_bus.h"
#include "app/linux/session/single_instance.h"

int main(int argc, char** argv) {
    using quelby::app::SingleInstance;
    const QCoreApplication application(argc, argv);
    quelby::app::SessionBus bus;
    const auto connection = bus.connection();
    if (!connection) {
        return 1;
    }
    SingleInstance instance(*connection, "com.quelby.Test", [] { std::cout << "show" << std::endl; });
    switch (instance.claim()) {
    case SingleInstance::Rank::first:
        std::cout << "first" << std::endl;
        return QCoreApplication::exec();
    case SingleInstance::Rank::second:
        std::cout << "second" << std::endl;
        break;
    case SingleInstance::Rank::alone:
        std::cout << "alone" << std::endl;
        break;
    }
    return 0;
}
