// What the presentation says in constants, for the layout.
#pragma once

#include <QObject>
#include <QString>
#include <qqmlintegration.h>

#include "platform/interface_font.h"
#include "ui/presentation/elements/metrics.h"
#include "ui/presentation/elements/sight.h"
#include "ui/presentation/energy/energy_words.h"
#include "ui/presentation/text/words.h"

namespace quelby {

class Metrics : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(int viewWidth READ width CONSTANT)   // points
    Q_PROPERTY(int viewHeight READ height CONSTANT) // points
    Q_PROPERTY(QString fontFamily READ family CONSTANT)

public:
    [[nodiscard]] static int width() { return viewWidth; }

    [[nodiscard]] static int height() { return viewHeight; }

    // The system's, or else the dashboard's own.
    [[nodiscard]] static QString family() {
        return QString::fromStdString(interfaceFontFamily().value_or(std::string(fontFamily)));
    }

    [[nodiscard]] Q_INVOKABLE static bool isInSight(double top, double height, double padding, double seenTop,
                                                    double seenHeight) {
        return quelby::isInSight(top, height, padding, seenTop, seenHeight);
    }
};

class Words : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString program READ program CONSTANT)
    Q_PROPERTY(QString settings READ settings CONSTANT)
    Q_PROPERTY(QString back READ back CONSTANT)
    Q_PROPERTY(QString closeSettings READ closeSettings CONSTANT)
    Q_PROPERTY(QString closeEnergy READ closeEnergy CONSTANT)

public:
    [[nodiscard]] static QString program() { return QString::fromUtf8(words::program); }

    [[nodiscard]] static QString settings() { return QString::fromUtf8(words::settings); }

    [[nodiscard]] static QString back() { return QString::fromUtf8(words::back); }

    [[nodiscard]] static QString closeSettings() { return QString::fromUtf8(words::closeSettings); }

    [[nodiscard]] static QString closeEnergy() { return QString::fromUtf8(words::closeEnergy); }

    // Of the button with today's figure.
    [[nodiscard]] Q_INVOKABLE static QString energyButtonName(const QString& today) {
        return QString::fromStdString(quelby::energyButtonName(today.toStdString()));
    }
};

} // namespace quelby
