#include "data/ModelContext.h"

#include "FileCheck.h"
#include "LineCoding.h"
#include "LineRejected.h"
#include "OpenStore.h"
#include "StoreFailures.h"

#include <utility>

namespace vantrell {
namespace {

// A few milliseconds' work.
constexpr std::int64_t linesAhead = 2'500;

template <typename Texts, typename Row, typename Line, typename... Dictionaries>
void appendEncoded(std::span<const Row> rows, std::vector<Line>& lines, TextDictionary& dictionary,
                   Dictionaries&... others) {
    Texts texts(dictionary);
    for (const Row& row : rows) {
        lines.push_back(encoded(row, texts, others...));
    }
}

}  // namespace

ModelContext::ModelContext(SqliteDatabase& database, std::shared_ptr<FileCheck> fileCheck)
    : database_(database), fileCheck_(std::move(fileCheck)), parts_(OpenStore{database, health_}) {
    checkCounts();
}

ModelContext::~ModelContext() = default;

// Lines that are gone with what named them are told by the reports alone.
void ModelContext::checkCounts() {
    for (const auto& [id, report] : salesReports().all()) {
        const auto first = salesReports().find(salesReportKey(report.frequencyRaw, report.reportDate));
        if (first->id == id &&
            report.rowCount != salesLines().lineCount(report.frequencyRaw, report.reportDate)) {
            health_.addDamagedReport({report.frequencyRaw, report.reportDate});
        }
    }
    for (const auto& [id, report] : financeReports().all()) {
        const auto first = financeReports().find(financeReportKey(report.region, report.fiscalPeriod));
        if (first->id == id &&
            report.rowCount != financeLines().lineCount(report.region, report.fiscalPeriod)) {
            health_.addDamagedReport({report.region, report.fiscalPeriod});
        }
    }
}

void ModelContext::encode(std::span<const SalesRowView> rows, std::vector<SalesLine>& lines) {
    appendEncoded<SalesTexts>(rows, lines, own<TextDictionary>(), own<OfferDictionary>());
}

void ModelContext::encode(std::span<const ParsedFinanceRow> rows, std::vector<FinanceLine>& lines) {
    appendEncoded<FinanceTexts>(rows, lines, own<TextDictionary>());
}

DictionarySizes ModelContext::dictionarySizes() const {
    return {texts().size(), offers().size(), texts().bytes() + offers().bytes()};
}

void ModelContext::forgetUnsaved(const DictionarySizes& before) {
    own<OfferDictionary>().shrink(before.offers);
    own<TextDictionary>().shrink(before.texts);
}

// What was written ahead may be of the lines that are replaced, and is undone.
void ModelContext::replaceSalesLines(const std::string& frequencyRaw, const std::string& reportDate,
                                     std::vector<SalesLine> lines) {
    rollBack();
    own<LineTable<SalesLine>>().replace(frequencyRaw, reportDate, std::move(lines));
}

void ModelContext::replaceFinanceLines(const std::string& region, const std::string& fiscalPeriod,
                                       std::vector<FinanceLine> lines) {
    rollBack();
    own<LineTable<FinanceLine>>().replace(region, fiscalPeriod, std::move(lines));
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

std::vector<SalesRow> ModelContext::fetchSalesRows() const {
    std::vector<SalesRow> rows;
    for (const LineBatch& batch : salesLines().batches()) {
        salesLines().readLines(batch, [&](const SalesLine& line) {
            rows.push_back({.frequencyRaw = batch.group,
                            .reportDate = batch.label,
                            .line = decoded(line, texts(), offers())});
        });
    }
    return rows;
}

std::vector<FinanceRow> ModelContext::fetchFinanceRows() const {
    std::vector<FinanceRow> rows;
    for (const LineBatch& batch : financeLines().batches()) {
        financeLines().readLines(batch, [&](const FinanceLine& line) {
            rows.push_back(
                {.region = batch.group, .fiscalPeriod = batch.label, .line = decoded(line, texts())});
        });
    }
    return rows;
}

bool ModelContext::hasChanges() {
    bool any = false;
    parts_.each([&any](auto& part) { any = any || part.hasChanges(); });
    return any;
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
        parts_.each([](auto& part) { part.write(); });
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
    parts_.each([](auto& part) { part.committed(); });
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
    own<LineTable<SalesLine>>().takeBack(report.group, report.label);
    own<LineTable<FinanceLine>>().takeBack(report.group, report.label);
}

bool ModelContext::writeAhead() {
    if (!mayWrite() || (!own<LineTable<SalesLine>>().hasUnwrittenLines() &&
                        !own<LineTable<FinanceLine>>().hasUnwrittenLines())) {
        return false;
    }
    try {
        begin();
        std::int64_t most = linesAhead;
        own<LineTable<SalesLine>>().writeLines(most);
        own<LineTable<FinanceLine>>().writeLines(most);
        return own<LineTable<SalesLine>>().hasUnwrittenLines() ||
               own<LineTable<FinanceLine>>().hasUnwrittenLines();
    } catch (const SqliteError&) {
        rollBack();
        return false;
    }
}

void ModelContext::begin() {
    if (transaction_) {
        return;
    }
    transaction_ = std::make_unique<SqliteTransaction>(database_);
    if (isUnsure_) {
        parts_.each([](auto& part) { part.removeUnsaved(); });
    }
}

void ModelContext::rollBack() {
    transaction_.reset();
    own<LineTable<SalesLine>>().rolledBack();
    own<LineTable<FinanceLine>>().rolledBack();
}

}  // namespace vantrell
