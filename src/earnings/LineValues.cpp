#include "earnings/LineValues.h"

#include <cmath>
#include <limits>

namespace vantrell {
namespace {

constexpr std::int64_t fewestUnits = -2;
constexpr std::int64_t mostUnits = 13;
constexpr auto fewUnits = static_cast<std::size_t>(mostUnits - fewestUnits + 1);

constexpr double notConverted = std::numeric_limits<double>::quiet_NaN();
constexpr double withoutRate = std::numeric_limits<double>::infinity();

constexpr unsigned unitsBits = 32;

bool fitsInKey(std::int64_t units) {
    return units == static_cast<std::int32_t>(units);
}

std::uint64_t key(std::uint32_t price, std::int64_t units) {
    return std::uint64_t{price} << unitsBits | static_cast<std::uint32_t>(units);
}

}  // namespace

LineValues::LineValues(const SalesSnapshot& snapshot, const CurrencyConverter& converter)
    : snapshot_(snapshot), ofFewUnits_(snapshot.prices().size() * fewUnits, notConverted) {
    conversions_.reserve(snapshot.currencies().size());
    for (std::uint32_t currency = 0; currency < snapshot.currencies().size(); ++currency) {
        conversions_.push_back(converter.conversion(snapshot.currencies().text(currency)));
    }
}

std::optional<double> LineValues::value(const SalesRowRef& row) {
    const SalesChunk& chunk = row.chunk();
    const std::uint32_t price = chunk.prices[row.index];
    const std::int64_t units = chunk.unitsOf(row.index);
    double value = notConverted;
    if (units >= fewestUnits && units <= mostUnits) {
        double& known = ofFewUnits_[price * fewUnits + static_cast<std::size_t>(units - fewestUnits)];
        if (std::isnan(known)) [[unlikely]] {
            known = converted(price, units);
        }
        value = known;
    } else if (fitsInKey(units)) {
        const auto [known, isNew] = ofManyUnits_.try_emplace(key(price, units), notConverted);
        if (isNew) {
            known->second = converted(price, units);
        }
        value = known->second;
    } else {
        value = converted(price, units);
    }
    return value == withoutRate ? std::nullopt : std::optional(value);
}

double LineValues::converted(std::uint32_t price, std::int64_t units) const {
    const SalesPrice& known = snapshot_.prices()[price];
    const auto& conversion = conversions_[known.currency];
    return conversion ? (*conversion)(Decimal(units) * known.proceeds.value()).toDouble() : withoutRate;
}

}  // namespace vantrell
