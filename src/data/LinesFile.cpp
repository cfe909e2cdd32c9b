#include "data/LinesFile.h"

#include "Layouts.h"
#include "LineCoding.h"
#include "files/AtomicFile.h"

#include <QDateTime>

namespace vantrell {
namespace {

std::string cell(const std::string& text) {
    return text;
}
std::string cell(std::int64_t number) {
    return std::to_string(number);
}
std::string cell(const Decimal& amount) {
    return amount.text();
}
std::string cell(Instant day) {
    return QDateTime::fromSecsSinceEpoch(
               std::chrono::duration_cast<std::chrono::seconds>(day.time_since_epoch()).count(), Qt::UTC)
        .toString(QStringLiteral("yyyy-MM-dd"))
        .toStdString();
}

/// What `say` makes of each column that a row has, as one line.
template <typename Columns, typename Say>
std::string tabbed(const Columns& columns, Say say) {
    std::string text;
    forEach(columns, [&](const auto& each) {
        if constexpr (std::remove_cvref_t<decltype(each)>::isOfRow) {
            text.append(text.empty() ? "" : "\t").append(say(each));
        }
    });
    return text + "\n";
}

template <typename Lines, typename Columns, typename Decode>
LinesFile keep(const Lines& lines, const std::string& group, const std::string& label, const Columns& columns,
               Decode decode, const std::filesystem::path& folder) {
    std::string text = tabbed(columns, [](const auto& each) { return std::string(each.name); });
    for (const LineBatch& batch : lines.batches()) {
        if (batch.group == group && batch.label == label) {
            lines.readLines(batch, [&](const auto& line) {
                const auto row = decode(line);
                text += tabbed(columns, [&row](const auto& each) { return cell(row.*each.inRow); });
            });
        }
    }
    LinesFile file{group + "-" + label + ".tsv", {}};
    for (int number = 2; std::filesystem::exists(folder / file.name); ++number) {
        file.name = group + "-" + label + "-" + std::to_string(number) + ".tsv";
    }
    file.problem = writeAtomically(folder / file.name, text, Readers::ownerOnly);
    return file;
}

}  // namespace

LinesFile keepSalesLines(const ModelContext& context, const std::string& frequencyRaw,
                         const std::string& reportDate, const std::filesystem::path& folder) {
    const auto decode = [&context](const SalesLine& line) {
        return decoded(line, context.texts(), context.offers());
    };
    return keep(context.salesLines(), frequencyRaw, reportDate, salesColumns<std::string>, decode, folder);
}

LinesFile keepFinanceLines(const ModelContext& context, const std::string& region,
                           const std::string& fiscalPeriod, const std::filesystem::path& folder) {
    const auto decode = [&context](const FinanceLine& line) { return decoded(line, context.texts()); };
    return keep(context.financeLines(), region, fiscalPeriod, Layout<FinanceLine>::shown, decode, folder);
}

}  // namespace vantrell
