#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <qqmlintegration.h>

namespace quelby {

// One of the program's own symbols in a colour of one's choice, as large as the item and in its middle. A
// name that no symbol has shows nothing.
class SymbolItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(SymbolItem)
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    explicit SymbolItem(QQuickItem* parent = nullptr);

    [[nodiscard]] QString name() const { return name_; }

    void setName(const QString& name);

    [[nodiscard]] QColor color() const { return color_; }

    void setColor(const QColor& color);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void nameChanged();
    void colorChanged();

private:
    QString name_;
    QColor color_;
};

} // namespace quelby
