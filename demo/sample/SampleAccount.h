#pragma once

#include "sample/Catalogue.h"
#include "sample/DaySales.h"
#include "sample/Days.h"
#include "sample/SaleLine.h"

#include <cstdint>
#include <vector>

namespace vantrell::sample {

/// What tells one sample account from another.
struct AccountPlan {
    std::uint64_t seed = 20200512;
    /// On an ordinary day once the account has grown. Orders that are alike share a line of the report.
    std::uint32_t ordersPerDay = 160;
};

/// An invented seller with some dozen apps. Everything that was ever sold follows from the plan: a day's
/// sales are the same whenever they are asked for, and those of a month or a year are its days' added up.
class SampleAccount {
  public:
    explicit SampleAccount(AccountPlan plan = {});
    SampleAccount(const SampleAccount&) = delete;
    SampleAccount& operator=(const SampleAccount&) = delete;

    [[nodiscard]] const std::vector<Item>& items() const { return items_; }

    /// What was sold in `range`, one line a key, in the order of the catalogue. Empty if nothing was.
    [[nodiscard]] std::vector<SaleLine> sales(const DateRange& range) const;

  private:
    std::vector<Item> items_;
    DaySales days_;
};

}  // namespace vantrell::sample
