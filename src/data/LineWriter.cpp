#include "data/LineWriter.h"

#include "PackedDecimal.h"

namespace vantrell {

LineWriter& LineWriter::operator<<(const Decimal& value) {
    if (const auto packed = packedDecimal(value)) {
        return *this << *packed;
    }
    Parameter& parameter = next();
    parameter.text = value.text();
    parameter.bound.reset();
    insert_.bind(index_, std::string_view(parameter.text));
    return *this;
}

void LineWriter::insert(std::int64_t number) {
    insert_.bind(0, number);
    insert_.run();
    index_ = 0;
}

}  // namespace vantrell
