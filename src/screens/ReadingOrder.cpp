#include "screens/ReadingOrder.h"

#include <algorithm>

namespace vantrell {

void ReadingOrder::setContent(QQuickItem* content) {
    content_ = content;
    connect(content, &QQuickItem::childrenChanged, this, &ReadingOrder::sortSoon);
    connect(content, &QQuickItem::yChanged, this, &ReadingOrder::sortSoon);
    connect(content, &QQuickItem::heightChanged, this, &ReadingOrder::sortSoon);
    Q_EMIT contentChanged();
    sortSoon();
}

// New rows get their places only after they are made.
void ReadingOrder::sortSoon() {
    if (!isDue_) {
        isDue_ = true;
        QMetaObject::invokeMethod(this, &ReadingOrder::sort, Qt::QueuedConnection);
    }
}

void ReadingOrder::sort() {
    isDue_ = false;
    if (content_ == nullptr) {
        return;
    }
    auto items = content_->childItems();
    if (std::ranges::is_sorted(items, {}, &QQuickItem::y)) {
        return;
    }
    std::ranges::stable_sort(items, {}, &QQuickItem::y);
    for (qsizetype place = 1; place < items.size(); ++place) {
        items[place]->stackAfter(items[place - 1]);
    }
}

}  // namespace vantrell
