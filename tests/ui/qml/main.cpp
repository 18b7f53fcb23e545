// Runs the tests in QML.
#include <QQmlEngine>
#include <QtQuickTest>

#include "ui/qml/made_up.h"
#include "ui/support/offscreen.h"

namespace {

class Setup : public QObject {
    Q_OBJECT

public Q_SLOTS:

    void applicationAvailable() const { qmlRegisterType<quelby::MadeUp>("QuelbyTest", 1, 0, "MadeUp"); }

    void qmlEngineAvailable(QQmlEngine* engine) const {
        engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
    }
};

} // namespace

int main(int argc, char** argv) {
    const quelby::Offscreen offscreen;
    Setup setup;
    return quick_test_main_with_setup(argc, argv, "quelby", QUICK_TEST_SOURCE_DIR, &setup);
}

#include "main.moc"
