#pragma once

#include "data/LineTable.h"
#include "data/OfferDictionary.h"
#include "data/RecordTable.h"
#include "data/TextDictionary.h"

#include <memory>
#include <tuple>

namespace vantrell {

/// One part of each kind, made in this order from the same open store.
template <typename... Part>
class OneOfEach {
  public:
    explicit OneOfEach(const OpenStore& store) : parts_{std::make_shared<Part>(store)...} {}

    template <typename Kind>
    [[nodiscard]] const std::shared_ptr<Kind>& get() const {
        return std::get<std::shared_ptr<Kind>>(parts_);
    }
    template <typename Visit>
    void each(Visit visit) {
        (visit(*get<Part>()), ...);
    }

  private:
    std::tuple<std::shared_ptr<Part>...> parts_;
};

/// All that a store holds.
using StoreParts =
    OneOfEach<TextDictionary, OfferDictionary, RecordTable<SalesReport>, RecordTable<FinanceReport>,
              RecordTable<RateSet>, RecordTable<SyncLogEntry>, LineTable<SalesLine>, LineTable<FinanceLine>>;

}  // namespace vantrell
