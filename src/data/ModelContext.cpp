#include "data/ModelContext.h"

#include "StoreFailures.h"

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

ModelContext::ModelContext(SqliteDatabase& database, std::shared_ptr<FileCheck> fileCheck)
    : database_(database),
      fileCheck_(std::move(fileCheck)),
      texts_(std::make_shared<TextDictionary>(database)),
      offers_(database),
      salesReports_(database, health_),
      financeReports_(database, health_),
      rateSets_(database, health_),
      syncLog_(database, health_),
      salesLines_(database, health_),
      financeLines_(database, health_) {
    checkCounts();
}

// Lines that are gone with what named them are told by the reports alone.
void ModelContext::checkCounts() {
    for (const auto& [id, report] : salesReports_.all()) {
        const auto first = salesReports_.find(salesReportKey(report.frequencyRaw, report.reportDate));
        if (first->id == id &&
            report.rowCount != salesLines_.lineCount(report.frequencyRaw, report.reportDate)) {
            health_.addDamagedReport({report.frequencyRaw, report.reportDate});
        }
    }
    for (const auto& [id, report] : financeReports_.all()) {
        const auto first = financeReports_.find(financeReportKey(report.region, report.fiscalPeriod));
        if (first->id == id &&
            report.rowCount != financeLines_.lineCount(report.region, report.fiscalPeriod)) {
            health_.addDamagedReport({report.region, report.fiscalPeriod});
        }
    }
}

void ModelContext::encode(std::span<const SalesRowView> rows, std::vector<SalesLine>& lines) {
    appendEncoded(rows, lines, *texts_, offers_);
}

void ModelContext::encode(std::span<const ParsedFinanceRow> rows, std::vector<FinanceLine>& lines) {
    appendEncoded(rows, lines, *texts_);
}

DictionarySizes ModelContext::dictionarySizes() const {
    return {texts_->size(), offers_.size(), texts_->bytes() + offers_.bytes()};
}

void ModelContext::forgetUnsaved(const DictionarySizes& before) {
    offers_.shrink(before.offers);
    texts_->shrink(before.texts);
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
                            .line = decoded(line, *texts_, offers_)});
        });
    }
    return rows;
}

std::vector<FinanceRow> ModelContext::fetchFinanceRows() {
    std::vector<FinanceRow> rows;
    for (const LineBatch& batch : financeLines_.batches()) {
        financeLines_.readLines(batch, [&](const FinanceLine& line) {
            rows.push_back(
                {.region = batch.group, .fiscalPeriod = batch.label, .line = decoded(line, *texts_)});
        });
    }
    return rows;
}

bool ModelContext::hasChanges() const {
    return salesReports_.hasChanges() || financeReports_.hasChanges() || rateSets_.hasChanges() ||
           syncLog_.hasChanges() || salesLines_.hasChanges() || financeLines_.hasChanges();
}

std::optional<StoreError> ModelContext::save() {
    if (!hasChanges() || savesHeld_) {
        return std::nullopt;
    }
    if (health_.isDamaged()) {
        health_.setUnsaved(damagedStore());
        return health_.unsaved();
    }
    bool isCommitting = false;
    try {
        begin();
        write();
        isCommitting = true;
        transaction_->commit();
    } catch (const LineRejected& error) {
        rollBack();
        StoreError told = storeError(error);
        if (told.kind == StoreFailure::rejected && !isUnsure_) {
            takeBack(error.report());
            told.report = error.report();
        }
        return failed(std::move(told));
    } catch (const SqliteError& error) {
        isUnsure_ = isUnsure_ || isCommitting;
        rollBack();
        return failed(storeError(error));
    }
    isUnsure_ = false;
    transaction_.reset();
    committed();
    health_.setUnsaved(std::nullopt);
    return std::nullopt;
}

StoreError ModelContext::failed(StoreError error) {
    if (error.kind == StoreFailure::damaged) {
        health_.addDamage(error.description);
    }
    health_.setUnsaved(error);
    return error;
}

void ModelContext::takeBack(const ReportName& report) {
    salesLines_.takeBack(report.group, report.label);
    financeLines_.takeBack(report.group, report.label);
}

bool ModelContext::writeAhead() {
    if (!mayWrite() || (!salesLines_.hasUnwrittenLines() && !financeLines_.hasUnwrittenLines())) {
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
    if (transaction_) {
        return;
    }
    transaction_.emplace(database_);
    if (isUnsure_) {
        removeUnsaved();
    }
}

void ModelContext::removeUnsaved() {
    texts_->removeUnsaved();
    offers_.removeUnsaved();
    salesReports_.removeUnsaved();
    financeReports_.removeUnsaved();
    rateSets_.removeUnsaved();
    syncLog_.removeUnsaved();
    salesLines_.removeUnsaved();
    financeLines_.removeUnsaved();
}

void ModelContext::rollBack() {
    transaction_.reset();
    salesLines_.rolledBack();
    financeLines_.rolledBack();
}

void ModelContext::write() {
    texts_->write();
    offers_.write();
    salesReports_.write();
    financeReports_.write();
    rateSets_.write();
    syncLog_.write();
    salesLines_.write();
    financeLines_.write();
}

void ModelContext::committed() {
    texts_->committed();
    offers_.committed();
    salesReports_.committed();
    financeReports_.committed();
    rateSets_.committed();
    syncLog_.committed();
    salesLines_.committed();
    financeLines_.committed();
}

}  // namespace vantrell
