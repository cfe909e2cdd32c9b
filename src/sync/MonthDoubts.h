#pragma once

#include "base/Clock.h"
#include "data/ModelContext.h"
#include "files/Defaults.h"

#include <set>
#include <stop_token>
#include <string>

#include <qcoro/qcorotask.h>

namespace vantrell {

/// The months whose report says something else than their days, which were answered before it: those days are
/// asked for once more. Outlives the program, since the next run may be another day's.
class MonthDoubts {
  public:
    /// All that is referred to must outlive it. `end` ends the comparing.
    MonthDoubts(const ModelContext& store, Clock& clock, Defaults& defaults, std::stop_token end);

    /// Holds the report of a month, such as "2026-08", that has just been stored against its days, as soon as
    /// all of them are known.
    [[nodiscard]] QCoro::Task<> compare(std::string month);
    /// Whether a day was answered before the report of a month that is in doubt.
    [[nodiscard]] bool concern(const std::string& day) const;

  private:
    struct Sums;
    class Adder;

    [[nodiscard]] bool hasOlderDays(const std::string& month) const;
    void keep(const std::string& month, bool isInDoubt);
    [[nodiscard]] Instant answeredAt(const SalesReport& report) const;

    const ModelContext& store_;
    Clock& clock_;
    Defaults& defaults_;
    const std::stop_token end_;
    std::set<std::string> months_;
};

}  // namespace vantrell
