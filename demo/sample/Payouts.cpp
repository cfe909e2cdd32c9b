#include "sample/Payouts.h"

#include "sample/SaleTerms.h"

#include <algorithm>
#include <tuple>

namespace vantrell::sample {

namespace {

auto terms(const PayoutLine& line) {
    return std::tie(line.item, line.territory, line.isReturn, line.share, line.price);
}

}  // namespace

std::vector<PayoutLine> payouts(const SampleAccount& account, const DateRange& range) {
    std::vector<PayoutLine> single;
    for (const auto& [key, units] : account.sales(range)) {
        const auto& item = account.items()[key.item];
        if (isPaid(item, key.action)) {
            single.push_back({key.item, key.territory, key.action == Action::refund,
                              proceedsPerUnit(item, key).minor, customerPrice(item, key).minor, units});
        }
    }
    std::ranges::sort(single, {}, terms);

    std::vector<PayoutLine> lines;
    for (const auto& line : single) {
        if (lines.empty() || terms(lines.back()) != terms(line)) {
            lines.push_back(line);
        } else {
            lines.back().quantity += line.quantity;
        }
    }
    return lines;
}

}  // namespace vantrell::sample
