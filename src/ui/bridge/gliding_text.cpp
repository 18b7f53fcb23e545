#include "ui/bridge/gliding_text.h"

#include "ui/presentation/text/text_between.h"

namespace quelby {

void GlidingText::setTarget(const QString& target) {
    if (target == target_) {
        return;
    }
    from_ = target_.isEmpty() ? target : text_;
    target_ = target;
    setOut();
    show();
    Q_EMIT targetChanged();
}

void GlidingText::show() {
    const auto text =
        QString::fromStdString(textBetween(from_.toStdString(), target_.toStdString(), shownProgress()));
    if (text != text_) {
        text_ = text;
        Q_EMIT textChanged();
    }
}

} // namespace quelby
