#include "sample/SampleAccount.h"

#include "sample/SaleTally.h"

namespace vantrell::sample {

SampleAccount::SampleAccount(AccountPlan plan)
    : items_(sampleCatalogue()), days_(items_, plan.seed, plan.ordersPerDay) {}

std::vector<SaleLine> SampleAccount::sales(const DateRange& range) const {
    SaleTally tally;
    for (auto day = range.first; day <= range.last; day += std::chrono::days{1}) {
        days_.drawInto(tally, day);
    }
    return tally.lines();
}

}  // namespace vantrell::sample
