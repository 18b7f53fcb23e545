#pragma once

#include <QObject>
#include <QString>
#include <qqmlintegration.h>

namespace quelby {

// A figure that glides to each new value. Whoever animates it runs `progress` from 0 to 1 when `target` has
// changed.
class GlidingText : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString target READ target WRITE setTarget NOTIFY targetChanged)
    Q_PROPERTY(qreal progress READ progress WRITE setProgress NOTIFY progressChanged)
    Q_PROPERTY(QString text READ text NOTIFY textChanged)

public:
    using QObject::QObject;

    [[nodiscard]] QString target() const { return target_; }

    // Starts from what is shown; the first one is shown at once.
    void setTarget(const QString& target);

    [[nodiscard]] qreal progress() const { return progress_; }

    void setProgress(qreal progress);

    [[nodiscard]] QString text() const { return text_; }

Q_SIGNALS:
    void targetChanged();
    void progressChanged();
    void textChanged();

private:
    void show();

    QString from_;
    QString target_;
    qreal progress_ = 1;
    QString text_;
};

} // namespace quelby
