#pragma once

#include <QColor>
#include <QList>
#include <QObject>
#include <QString>
#include <qqmlintegration.h>

namespace quelby {

// What all charts look like. The values are the theme's; sizes are in points.
class ChartStyle : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString fontFamily MEMBER fontFamily NOTIFY changed)

    // From the left to the right end of the curve, at equal distances.
    Q_PROPERTY(QList<QColor> curveColors MEMBER curveColors NOTIFY changed)
    Q_PROPERTY(qreal curveWidth MEMBER curveWidth NOTIFY changed)
    Q_PROPERTY(qreal dotDiameter MEMBER dotDiameter NOTIFY changed) // of the newest sample

    Q_PROPERTY(QColor axisColor MEMBER axisColor NOTIFY changed)
    Q_PROPERTY(qreal axisSize MEMBER axisSize NOTIFY changed) // of the font

    // The sample that is looked at: a line through it, a circle on it, and around both a halo, where the
    // chart's surroundings are light.
    Q_PROPERTY(QColor lineColor MEMBER lineColor NOTIFY changed)
    Q_PROPERTY(qreal lineWidth MEMBER lineWidth NOTIFY changed)
    Q_PROPERTY(QColor circleColor MEMBER circleColor NOTIFY changed)
    Q_PROPERTY(qreal circleDiameter MEMBER circleDiameter NOTIFY changed)
    Q_PROPERTY(QColor haloColor MEMBER haloColor NOTIFY changed)
    Q_PROPERTY(qreal haloWidth MEMBER haloWidth NOTIFY changed) // of both its sides together

    // What is said of that sample.
    Q_PROPERTY(QColor labelColor MEMBER labelColor NOTIFY changed)
    Q_PROPERTY(QColor labelBackground MEMBER labelBackground NOTIFY changed)
    Q_PROPERTY(qreal labelSize MEMBER labelSize NOTIFY changed) // of the font
    Q_PROPERTY(qreal labelHorizontalPadding MEMBER labelHorizontalPadding NOTIFY changed)
    Q_PROPERTY(qreal labelVerticalPadding MEMBER labelVerticalPadding NOTIFY changed)
    Q_PROPERTY(qreal labelRadius MEMBER labelRadius NOTIFY changed)

public:
    QString fontFamily;
    QList<QColor> curveColors;
    qreal curveWidth = 0;
    qreal dotDiameter = 0;
    QColor axisColor;
    qreal axisSize = 0;
    QColor lineColor;
    qreal lineWidth = 0;
    QColor circleColor;
    qreal circleDiameter = 0;
    QColor haloColor;
    qreal haloWidth = 0;
    QColor labelColor;
    QColor labelBackground;
    qreal labelSize = 0;
    qreal labelHorizontalPadding = 0;
    qreal labelVerticalPadding = 0;
    qreal labelRadius = 0;

Q_SIGNALS:
    void changed();
};

} // namespace quelby
