#include "data/ModelContext.h"

#include <utility>

namespace vantrell {
namespace {

// A few milliseconds' work.
constexpr std::int64_t linesAhead = 2'500;

template <typename Row, typename Line, typename... Dictionaries>
void appendEncoded(std::span<const Row> rows, std::vector<Line>& lines, TextDictionary& dictionary,
                   Dictionaries&... others) {
    LineTexts texts(dictionary);
    for (const Row& row : rows) {
        lines.push_back(encoded(row, texts, others...));
    }
}

}  // namespace

ModelContext::ModelContext(SqliteDatabase& database)
    : database_(database),
      texts_(database),
      offers_(database),
      salesReports_(database),
      financeReports_(database),
      rateSets_(database),
      syncLog_(database),
      salesLines_(database),
      financeLines_(database) {}

void ModelContext::encode(std::span<const SalesRowView> rows, std::vector<SalesLine>& lines) {
    appendEncoded(rows, lines, texts_, offers_);
}

void ModelContext::encode(std::span<const ParsedFinanceRow> rows, std::vector<FinanceLine>& lines) {
    appendEncoded(rows, lines, texts_);
}

// What was written ahead may be of the lines that are replaced, and is undone.
void ModelContext::replaceSalesLines(const std::string& frequencyRaw, const std::string& reportDate,
                                     std::vector<SalesLine> lines) {
    rollBack();
    salesLines_.replace(frequencyRaw, reportDate, std::move(lines));
}

void ModelContext::replaceFinanceLines(const std::string& region, const std::string& fiscalPeriod,
                                       std::vector<FinanceLine> lines) {
    rollBack();
    financeLines_.replace(region, fiscalPeriod, std::move(lines));
}

void ModelContext::replaceSalesRows(const std::string& frequencyRaw, const std::string& reportDate,
                                    const std::vector<SalesRowView>& rows) {
    std::vector<SalesLine> lines;
    lines.reserve(rows.size());
    encode(rows, lines);
    replaceSalesLines(frequencyRaw, reportDate, std::move(lines));
}

void ModelContext::replaceFinanceRows(const std::string& region, const std::string& fiscalPeriod,
                                      const std::vector<ParsedFinanceRow>& rows) {
    std::vector<FinanceLine> lines;
    lines.reserve(rows.size());
    encode(rows, lines);
    replaceFinanceLines(region, fiscalPeriod, std::move(lines));
}

std::vector<SalesRow> ModelContext::fetchSalesRows() {
    std::vector<SalesRow> rows;
    for (const LineBatch& batch : salesLines_.batches()) {
        salesLines_.readLines(batch, [&](const SalesLine& line) {
            rows.push_back({.frequencyRaw = batch.group,
                            .reportDate = batch.label,
                            .line = decoded(line, texts_, offers_)});
        });
    }
    return rows;
}

std::vector<FinanceRow> ModelContext::fetchFinanceRows() {
    std::vector<FinanceRow> rows;
    for (const LineBatch& batch : financeLines_.batches()) {
        financeLines_.readLines(batch, [&](const FinanceLine& line) {
            rows.push_back(
                {.region = batch.group, .fiscalPeriod = batch.label, .line = decoded(line, texts_)});
        });
    }
    return rows;
}

bool ModelContext::hasChanges() const {
    return salesReports_.hasChanges() || financeReports_.hasChanges() || rateSets_.hasChanges() ||
           syncLog_.hasChanges() || salesLines_.hasChanges() || financeLines_.hasChanges();
}

std::optional<StoreError> ModelContext::save() {
    if (!hasChanges()) {
        return std::nullopt;
    }
    try {
        begin();
        write();
        transaction_->commit();
    } catch (const SqliteError& error) {
        rollBack();
        return StoreError{error.what()};
    }
    transaction_.reset();
    committed();
    return std::nullopt;
}

bool ModelContext::writeAhead() {
    if (!salesLines_.hasUnwrittenLines() && !financeLines_.hasUnwrittenLines()) {
        return false;
    }
    try {
        begin();
        std::int64_t most = linesAhead;
        salesLines_.writeLines(most);
        financeLines_.writeLines(most);
        return salesLines_.hasUnwrittenLines() || financeLines_.hasUnwrittenLines();
    } catch (const SqliteError&) {
        rollBack();
        return false;
    }
}

void ModelContext::begin() {
    if (!transaction_) {
        transaction_.emplace(database_);
    }
}

void ModelContext::rollBack() {
    transaction_.reset();
    salesLines_.rolledBack();
    financeLines_.rolledBack();
}

void ModelContext::write() {
    texts_.write();
    offers_.write();
    salesReports_.write();
    financeReports_.write();
    rateSets_.write();
    syncLog_.write();
    salesLines_.write();
    financeLines_.write();
}

void ModelContext::committed() {
    texts_.committed();
    offers_.committed();
    salesReports_.committed();
    financeReports_.committed();
    rateSets_.committed();
    syncLog_.committed();
    salesLines_.committed();
    financeLines_.committed();
}

}  // namespace vantrell
