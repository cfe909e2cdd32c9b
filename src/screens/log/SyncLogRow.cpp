#include "screens/log/SyncLogRow.h"

#include "screens/components/RowText.h"
#include "screens/components/ShownText.h"

namespace vantrell {
namespace {

Tone::Value outcomeTone(const std::string& outcome) {
    return outcome == "ok" ? Tone::Good : outcome == "error" ? Tone::Bad : Tone::Secondary;
}

}  // namespace

QString SyncLogRow::copyText() const {
    return rowText({date, key, outcome, message});
}

SyncLogRow syncLogRow(const Locale& locale, const TimeZone& zone, const SyncLogEntry& entry) {
    return {.key = shownText(entry.key),
            .outcome = shownText(entry.outcome),
            .tone = outcomeTone(entry.outcome),
            .message = shownText(entry.message, messageCharacters),
            .date = fromUtf8(locale.logTime(entry.date, zone))};
}

}  // namespace vantrell
