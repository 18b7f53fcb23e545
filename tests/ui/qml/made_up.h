#pragma once

#include <QObject>
#include <QVariant>
#include <qqmlintegration.h>

#include "ui/support/made_up_dashboard.h"

namespace quelby {

// A made-up dashboard for tests in QML, whose language has no way to write its values.
class MadeUp : public QObject {
    Q_OBJECT
    Q_PROPERTY(quelby::DashboardModel* model READ model CONSTANT)
    Q_PROPERTY(int quits READ quits)
    Q_PROPERTY(int batterySettingsOpened READ batterySettingsOpened)
    Q_PROPERTY(QStringList scripts READ scripts)         // that the administrator was asked to run
    Q_PROPERTY(QStringList loginWishes READ loginWishes) // "register", "unregister"
    Q_PROPERTY(QString config READ config)               // the helper's config.json
    Q_PROPERTY(int configWrites READ configWrites)
    Q_PROPERTY(bool administratorAgrees READ doesAdministratorAgree WRITE setAdministratorAgrees)

public:
    MadeUp();

    [[nodiscard]] DashboardModel* model() { return &dashboard_.model; }

    [[nodiscard]] int quits() const { return dashboard_.quits; }

    [[nodiscard]] int batterySettingsOpened() const { return dashboard_.batterySettingsOpened; }

    [[nodiscard]] QStringList scripts() const;
    [[nodiscard]] QStringList loginWishes() const;
    [[nodiscard]] QString config() const;

    [[nodiscard]] int configWrites() const { return dashboard_.computer.helper.writes; }

    [[nodiscard]] bool doesAdministratorAgree() const { return dashboard_.computer.installer.agrees; }

    void setAdministratorAgrees(bool agrees) { dashboard_.computer.installer.agrees = agrees; }

    // Something in every card.
    Q_INVOKABLE void fill();

    // A published field by its name; times in seconds since 1970, ranges and displays by their raw values,
    // lists as arrays, the points of the history as [id, watts], processes as [name, cpu, watts]. False where
    // there is no such field.
    Q_INVOKABLE bool set(const QString& name, const QVariant& value);

    // The helper is another version's.
    Q_INVOKABLE void setHelperOutdated(bool outdated);

    Q_INVOKABLE QVariant field(const QString& name) const;

private:
    MadeUpDashboard dashboard_;
};

} // namespace quelby
