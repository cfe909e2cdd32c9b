#include "data/ModelContext.h"

#include <utility>

namespace vantrell {
namespace {

template <typename Row, typename... Dictionaries>
auto encodedAll(const std::vector<Row>& rows, TextDictionary& dictionary, Dictionaries&... others) {
    LineTexts texts(dictionary);
    std::vector<decltype(encoded(rows.front(), texts, others...))> lines;
    lines.reserve(rows.size());
    for (const Row& row : rows) {
        lines.push_back(encoded(row, texts, others...));
    }
    return lines;
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

void ModelContext::replaceSalesRows(const std::string& frequencyRaw, const std::string& reportDate,
                                    const std::vector<SalesRowView>& rows) {
    salesLines_.replace(frequencyRaw, reportDate, encodedAll(rows, texts_, offers_));
}

void ModelContext::replaceFinanceRows(const std::string& region, const std::string& fiscalPeriod,
                                      const std::vector<ParsedFinanceRow>& rows) {
    financeLines_.replace(region, fiscalPeriod, encodedAll(rows, texts_));
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
        SqliteTransaction transaction(database_);
        write();
        transaction.commit();
    } catch (const SqliteError& error) {
        return StoreError{error.what()};
    }
    committed();
    return std::nullopt;
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
