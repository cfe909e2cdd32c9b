#include "MonthDoubts.h"

#include "ReportRequests.h"
#include "calendar/DayKey.h"

#include <algorithm>
#include <map>
#include <unordered_map>
#include <utility>
#include <vector>

namespace vantrell {
namespace {

constexpr const char* monthsInDoubtKey = "monthsInDoubt";
constexpr std::int64_t linesAtOnce = 4'000;
constexpr std::size_t monthLength = std::string_view("2026-08").size();

std::vector<KeyedDay> daysOfMonth(const std::string& month) {
    const CivilDate first = dateFromDayKey(month + "-01").value();
    return days(dayKey(first), dayKey(first.year() / first.month() / std::chrono::last));
}

SalesReportRequest daily(const std::string& day) {
    return {ReportFrequency::daily, day};
}

}  // namespace

/// What is compared: all units, and the proceeds of each currency in which there are any.
struct MonthDoubts::Sums {
    std::int64_t units = 0;
    std::map<TextID, Decimal> proceeds;
    bool operator==(const Sums&) const = default;
};

/// Adds up lines; those of one offer are multiplied by its price at the end.
class MonthDoubts::Adder {
  public:
    explicit Adder(const ModelContext& store) : store_(store) {}

    void add(const LineBatch& batch) {
        store_.salesLines().readLines(
            batch, [this](const SalesLine& line) { unitsByOffer_[line.offer] += line.units; });
    }

    [[nodiscard]] Sums sums() const {
        Sums sums;
        for (const auto& [id, units] : unitsByOffer_) {
            const StoredOffer& offer = store_.offers().offer(id);
            sums.units += units;
            sums.proceeds[offer.proceedsCurrency] += offer.proceedsPerUnit * Decimal(units);
        }
        std::erase_if(sums.proceeds, [](const auto& entry) { return entry.second.isZero(); });
        return sums;
    }

  private:
    const ModelContext& store_;
    std::unordered_map<OfferID, std::int64_t> unitsByOffer_;
};

MonthDoubts::MonthDoubts(const ModelContext& store, Clock& clock, Defaults& defaults, std::stop_token end)
    : store_(store), clock_(clock), defaults_(defaults), end_(std::move(end)) {
    for (const auto& [month, since] : defaults.textMap(monthsInDoubtKey).value_or(TextMap())) {
        months_.insert(month);
    }
}

// In steps between which the window can move.
QCoro::Task<> MonthDoubts::compare(std::string month) {
    if (!hasOlderDays(month)) {
        co_return;
    }
    Adder whole(store_);
    Adder ofDays(store_);
    std::int64_t read = 0;
    for (const LineBatch& batch : store_.salesLines().batches()) {
        const bool isDay = batch.group == rawText(ReportFrequency::daily) &&
                           batch.label.size() > monthLength && batch.label.starts_with(month);
        if (isDay || (batch.group == rawText(ReportFrequency::monthly) && batch.label == month)) {
            (isDay ? ofDays : whole).add(batch);
            read += batch.lineCount;
            if (read > linesAtOnce) {
                read = 0;
                co_await clock_.sleep(std::chrono::microseconds::zero(), end_);
            }
            if (end_.stop_requested()) {
                co_return;
            }
        }
    }
    keep(month, whole.sums() != ofDays.sums());
}

bool MonthDoubts::concern(const std::string& day) const {
    const std::string month = day.substr(0, monthLength);
    if (!months_.contains(month)) {
        return false;
    }
    const auto& reports = store_.salesReports();
    const auto whole = reports.find(SalesReportRequest{ReportFrequency::monthly, month}.recordKey());
    const auto ofDay = reports.find(daily(day).recordKey());
    return whole && ofDay && answeredAt(ofDay->record) < answeredAt(whole->record);
}

/// Only if nothing else explains what differs.
bool MonthDoubts::hasOlderDays(const std::string& month) const {
    const auto& reports = store_.salesReports();
    const auto whole = reports.find(SalesReportRequest{ReportFrequency::monthly, month}.recordKey());
    if (!whole || whole->record.status() != ReportStatus::ok) {
        return false;
    }
    bool isOneOlder = false;
    for (const KeyedDay& day : daysOfMonth(month)) {
        const auto found = reports.find(daily(day.key).recordKey());
        if (!found || !isKnown(found->record.status())) {
            return false;
        }
        isOneOlder = isOneOlder || answeredAt(found->record) < answeredAt(whole->record);
    }
    return isOneOlder;
}

void MonthDoubts::keep(const std::string& month, bool isInDoubt) {
    if (isInDoubt == months_.contains(month)) {
        return;
    }
    if (isInDoubt) {
        months_.insert(month);
    } else {
        months_.erase(month);
    }
    TextMap kept;
    for (const std::string& each : months_) {
        kept.emplace(each, "");
    }
    defaults_.setTextMap(monthsInDoubtKey, kept);
}

/// What lies ahead was noted before the clock was set back.
Instant MonthDoubts::answeredAt(const SalesReport& report) const {
    return report.fetchedAt > clock_.now() ? distantPast : report.fetchedAt;
}

}  // namespace vantrell
