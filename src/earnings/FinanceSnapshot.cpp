#include "earnings/FinanceSnapshot.h"

#include <utility>

namespace vantrell {

void FinanceSnapshot::load(ModelContext& context, std::int64_t load) {
    auto known = std::exchange(rowsByBatch_, {});
    rows_.clear();
    try {
        for (const LineBatch& batch : context.financeLines().batches()) {
            const auto unchanged = known.find(batch.id);
            auto rows = unchanged != known.end() ? std::move(unchanged->second) : readBatch(context, batch);
            rows_.insert(rows_.end(), rows.begin(), rows.end());
            rowsByBatch_.emplace(batch.id, std::move(rows));
        }
    } catch (const SqliteError&) {
        // A store that can't be read shows as an empty one; the next reload tries again.
        rows_.clear();
        rowsByBatch_.clear();
    }
    for (std::uint64_t index = 0; index < rows_.size(); ++index) {
        rows_[index].id = {load, index};
    }
}

std::vector<FinanceRowLite> FinanceSnapshot::readBatch(ModelContext& context, const LineBatch& batch) {
    const auto pooled = [&](std::string_view text) { return texts_.text(texts_.intern(text)); };
    const auto text = [&](TextID id) { return pooled(context.texts().text(id)); };
    const std::string_view fiscalPeriod = pooled(batch.label);
    std::vector<FinanceRowLite> rows;
    context.financeLines().readFigures(batch, [&](const FinanceLine& line) {
        rows.push_back({.id = {},
                        .fiscalPeriod = fiscalPeriod,
                        .startDate = line.startDate,
                        .endDate = line.endDate,
                        .appleID = line.appleID,
                        .title = text(line.title),
                        .quantity = line.quantity,
                        .extendedShare = line.extendedPartnerShare,
                        .currency = text(line.partnerShareCurrency),
                        .saleOrReturn = text(line.saleOrReturn),
                        .country = text(line.country)});
    });
    return rows;
}

}  // namespace vantrell
