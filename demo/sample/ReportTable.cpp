#include "sample/ReportTable.h"

#include <array>
#include <charconv>

namespace vantrell::sample {

namespace {

void appendTwoDigits(std::string& out, unsigned value) {
    out += static_cast<char>('0' + value / 10);
    out += static_cast<char>('0' + value % 10);
}

}  // namespace

ReportTable::ReportTable(std::string_view heading) {
    body_.append(heading).append(1, '\n');
}

ReportTable& ReportTable::text(std::string_view cell) {
    body_.append(cell).append(1, '\t');
    return *this;
}

ReportTable& ReportTable::number(std::int64_t cell) {
    std::array<char, 24> digits{};
    const auto* const end = std::to_chars(digits.begin(), digits.end(), cell).ptr;
    return text({digits.data(), static_cast<std::size_t>(end - digits.data())});
}

ReportTable& ReportTable::money(Money cell, LeadingZero zero) {
    appendMoney(body_, cell, zero);
    body_ += '\t';
    return *this;
}

void ReportTable::endLine() {
    body_.back() = '\n';
}

std::string reportDateCell(Day day) {
    const std::chrono::year_month_day date{day};
    std::string cell;
    appendTwoDigits(cell, static_cast<unsigned>(date.month()));
    cell += '/';
    appendTwoDigits(cell, static_cast<unsigned>(date.day()));
    cell += '/';
    return cell + std::to_string(static_cast<int>(date.year()));
}

}  // namespace vantrell::sample
