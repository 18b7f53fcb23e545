#pragma once

#include <QString>

#include "ui/bridge/gliding.h"

namespace quelby {

// A figure that glides to each new value. The first one is shown at once.
// The base is named in full for the tools of QML, which do not look into namespaces.
class GlidingText : public quelby::Gliding {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString target READ target WRITE setTarget NOTIFY targetChanged)
    Q_PROPERTY(QString text READ text NOTIFY textChanged)

public:
    using Gliding::Gliding;

    [[nodiscard]] QString target() const { return target_; }

    void setTarget(const QString& target);

    [[nodiscard]] QString text() const { return text_; }

Q_SIGNALS:
    void targetChanged();
    void textChanged();

protected:
    void show() override;

private:
    QString from_;
    QString target_;
    QString text_;
};

} // namespace quelby
