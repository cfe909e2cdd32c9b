#include "screens/components/Question.h"

#include <utility>

namespace vantrell {

void Question::ask(const QString& text, Way consent, Way otherWay) {
    text_ = text;
    consent_ = std::move(consent);
    otherWay_ = std::move(otherWay);
    Q_EMIT changed();
}

void Question::end(Way chosen) {
    ask({}, {});
    if (chosen.go) {
        chosen.go();
    }
}

}  // namespace vantrell
