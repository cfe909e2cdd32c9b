#include "figures/FinanceSnapshot.h"

#include "ReadAhead.h"

#include <algorithm>
#include <utility>

namespace vantrell {

bool FinanceSnapshot::readAhead(ModelContext& context) {
    return vantrell::readAhead(
        context.financeLines().batches(), [this](BatchID batch) { return rowsByBatch_.contains(batch); },
        [&](const LineBatch& batch) {
            return rowsByBatch_.emplace(batch.id, readBatch(context, batch)).first->second.size();
        });
}

void FinanceSnapshot::load(ModelContext& context, std::int64_t load) {
    const auto batches = context.financeLines().batches();
    // A batch never changes, so the same batches hold the same rows.
    const bool isUnchanged = std::ranges::equal(batches, batches_, {}, &LineBatch::id, &LineBatch::id);
    if (!isUnchanged) {
        read(context, batches);
    }
    for (std::uint64_t index = 0; index < rows_.size(); ++index) {
        rows_[index].id = {load, index};
    }
}

void FinanceSnapshot::read(ModelContext& context, const std::vector<LineBatch>& batches) {
    auto known = std::exchange(rowsByBatch_, {});
    rows_.clear();
    batches_.clear();
    for (const LineBatch& batch : batches) {
        const auto unchanged = known.find(batch.id);
        auto rows = unchanged != known.end() ? std::move(unchanged->second) : readBatch(context, batch);
        rows_.insert(rows_.end(), rows.begin(), rows.end());
        rowsByBatch_.emplace(batch.id, std::move(rows));
    }
    batches_ = batches;
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
