#pragma once

#include "data/ModelContext.h"
#include "figures/FinanceRowLite.h"
#include "figures/TextPool.h"

#include <cstdint>
#include <map>
#include <vector>

namespace vantrell {

/// All stored finance lines in memory, in the order of the store: by fiscal period and file. Reports that did
/// not change since the last load are not read again.
class FinanceSnapshot {
  public:
    FinanceSnapshot() = default;
    FinanceSnapshot(const FinanceSnapshot&) = delete;
    FinanceSnapshot& operator=(const FinanceSnapshot&) = delete;

    /// Reads some of the reports that the next load will need, so that it is quick; false when that was
    /// little or nothing, and the load can follow. What is shown until then stays as it is.
    [[nodiscard]] bool readAhead(ModelContext& context);

    /// Takes over what the context holds now; always of the same store. Lines that can't be read are missing,
    /// and told by the store's health. `load` numbers the reload, for the identities of the rows.
    void load(ModelContext& context, std::int64_t load);

    [[nodiscard]] const std::vector<FinanceRowLite>& rows() const { return rows_; }

  private:
    void read(ModelContext& context, const std::vector<LineBatch>& batches);
    std::vector<FinanceRowLite> readBatch(ModelContext& context, const LineBatch& batch);

    TextPool texts_;
    std::vector<LineBatch> batches_;  // what the rows were read from
    // Those of the last load, and what was read ahead of the next.
    std::map<BatchID, std::vector<FinanceRowLite>> rowsByBatch_;
    std::vector<FinanceRowLite> rows_;
};

}  // namespace vantrell
