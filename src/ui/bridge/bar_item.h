#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <qqmlintegration.h>

namespace quelby {

// A fill with round ends over a track of the same height. Drawn here, because the rectangles of Qt Quick are put
// together from whole pieces, whose seams show where a point is not a whole number of pixels.
class BarItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(BarItem)
    Q_PROPERTY(qreal fraction READ fraction WRITE setFraction NOTIFY fractionChanged) // filled; 0 to 1
    Q_PROPERTY(QColor track READ track WRITE setTrack NOTIFY colorsChanged)
    Q_PROPERTY(QColor first READ first WRITE setFirst NOTIFY colorsChanged) // where the fill begins
    Q_PROPERTY(QColor last READ last WRITE setLast NOTIFY colorsChanged)    // where it ends
    Q_PROPERTY(bool fromRight READ fromRight WRITE setFromRight NOTIFY fromRightChanged)

public:
    explicit BarItem(QQuickItem* parent = nullptr);

    [[nodiscard]] qreal fraction() const { return fraction_; }

    void setFraction(qreal fraction);

    [[nodiscard]] QColor track() const { return track_; }

    void setTrack(const QColor& color) { setColor(track_, color); }

    [[nodiscard]] QColor first() const { return first_; }

    void setFirst(const QColor& color) { setColor(first_, color); }

    [[nodiscard]] QColor last() const { return last_; }

    void setLast(const QColor& color) { setColor(last_, color); }

    [[nodiscard]] bool fromRight() const { return fromRight_; }

    void setFromRight(bool fromRight);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void fractionChanged();
    void colorsChanged();
    void fromRightChanged();

private:
    [[nodiscard]] qreal filled(qreal fraction) const; // points, in whole pixels
    void setColor(QColor& which, const QColor& color);

    qreal fraction_ = 0;
    QColor track_;
    QColor first_;
    QColor last_;
    bool fromRight_ = false;
};

} // namespace quelby
