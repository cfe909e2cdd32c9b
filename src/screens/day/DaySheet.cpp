#include "screens/day/DaySheet.h"

#include <utility>

namespace vantrell {

DaySheet::DaySheet(const ScreenParts& parts, QObject* parent) : QObject(parent), parts_(parts) {}

void DaySheet::open(const std::string& dayKey, const AppFilter& apps) {
    show(std::make_unique<DayDetailView>(parts_, dayKey, apps));
}

void DaySheet::dismiss() {
    show(nullptr);
}

// The old one goes after whoever is bound to it has been told.
void DaySheet::show(std::unique_ptr<DayDetailView> day) {
    if (day_ == nullptr && day == nullptr) {
        return;
    }
    std::swap(day_, day);
    Q_EMIT dayChanged();
}

}  // namespace vantrell
