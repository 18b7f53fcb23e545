#include "ui/bridge/gliding_text.h"

#include "ui/presentation/text/text_between.h"

namespace quelby {

void GlidingText::setTarget(const QString& target) {
    if (target == target_) {
        return;
    }
    const auto first = textBetween(text_.toStdString(), target.toStdString(), glided(1));
    const bool glides = canGlide() && !target_.isEmpty() && first != target.toStdString();
    from_ = glides ? text_ : target;
    target_ = target;
    setOut(glides);
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
