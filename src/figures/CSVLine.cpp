#include "figures/CSVLine.h"

namespace vantrell {
namespace {

std::string csvField(const std::string& field) {
    if (field.find_first_of(",\"\n") == std::string::npos) {
        return field;
    }
    std::string quoted = "\"";
    for (const char letter : field) {
        quoted += letter;
        if (letter == '"') {
            quoted += letter;
        }
    }
    return quoted + "\"";
}

}  // namespace

std::string csvLine(const std::vector<std::string>& fields) {
    std::string line;
    const char* separator = "";
    for (const std::string& field : fields) {
        line += separator + csvField(field);
        separator = ",";
    }
    return line;
}

std::string breakdownText(const AmountsByCurrency& byCurrency) {
    std::string text;
    for (const auto& [code, amount] : byCurrency) {
        text += (text.empty() ? "" : "; ") + code + " " + amount.text();
    }
    return text;
}

}  // namespace vantrell
