#include "base/Characters.h"
#include "base/Overloaded.h"
#include "calendar/ReportSchedule.h"
#include "reports/ReportError.h"
#include "sync/SyncEngine.h"

#include <algorithm>
#include <memory>
#include <new>
#include <span>
#include <stdexcept>
#include <utility>

// One report's way from its stored status through one request to its rows, new status and log line.

namespace vantrell {
namespace {

constexpr std::size_t loggedCharacters = 500;
// A few milliseconds' work.
constexpr std::size_t rowsAtOnce = 4'000;
constexpr std::size_t rowsOfLongReport = 100'000;
// What one report may take besides a few megabytes: its body, its rows, and new texts and offers, which are
// then taken twice, by the store and by the figures.
constexpr std::size_t mostReportBytes = std::size_t{160} << 20U;
constexpr std::size_t mostNewBytes = std::size_t{48} << 20U;
constexpr const char* notAReport = "Apple's answer was not a report.";
constexpr const char* notEnoughMemory = "There is not enough memory for the report.";

}  // namespace

QCoro::Task<ReportStatus> SyncEngine::syncSalesReport(ReportFrequency frequency, std::string reportDate,
                                                      bool force) {
    return syncReport(SalesReportRequest{frequency, std::move(reportDate)}, force);
}

QCoro::Task<ReportStatus> SyncEngine::syncFinanceReport(std::string fiscalPeriod, bool force) {
    return syncReport(FinanceReportRequest{std::move(fiscalPeriod)}, force);
}

template <typename Request>
Stored<typename Request::Record> SyncEngine::findOrCreate(const Request& request) {
    auto& records = Request::records(context_);
    if (auto found = records.find(request.recordKey())) {
        return *std::move(found);
    }
    auto record = request.newRecord();
    const RecordID id = records.insert(record);
    return {id, std::move(record)};
}

Stored<SalesReport> SyncEngine::findOrCreateSalesReport(ReportFrequency frequency, std::string reportDate) {
    return findOrCreate(SalesReportRequest{frequency, std::move(reportDate)});
}

template <typename Request>
QCoro::Task<ReportStatus> SyncEngine::syncReport(Request request, bool force) {
    const ReportStatus before = findOrCreate(request).record.status();
    if ((!force && isFinal(before)) || stopRequested_ || isClosing()) {
        co_return before;
    }
    const Instant started = clock_.now();
    ReportResponse answer;
    Content<Request> content;
    // Whatever a report costs, it fails by itself.
    try {
        answer = co_await request.fetch(client_, life_.token());
        if (auto* const success = std::get_if<response::Success>(&answer)) {
            content = co_await read<Request>(std::move(success->body));
        }
    } catch (const ReportError& error) {
        answer = response::Failure{error.what()};
    } catch (const std::bad_alloc&) {
        answer = response::Failure{notEnoughMemory};
    } catch (const std::length_error&) {
        answer = response::Failure{notEnoughMemory};
    }
    if (isClosing()) {
        co_return before;
    }
    switch (apply(request, answer, std::move(content), started)) {
        case Applied::rateLimited:
            co_return findOrCreate(request).record.status();
        case Applied::skipped:
            co_await pause();
            co_return ReportStatus::ok;
        case Applied::stored:
            break;
    }
    co_await saveInSteps();
    if (isClosing()) {
        co_return before;
    }
    bumpRevision(false);
    const ReportStatus after = findOrCreate(request).record.status();
    co_await pause();
    co_return after;
}

// Read beside the window, a block of rows at a time. What a report that can't be kept has left in the
// dictionaries is forgotten.
template <typename Request>
QCoro::Task<SyncEngine::Content<Request>> SyncEngine::read(std::string body) {
    Content<Request> content;
    const std::size_t bodyBytes = body.size();
    const DictionarySizes before = context_.dictionarySizes();
    const std::shared_ptr<ReportReader<typename Request::Row>> reader = Request::reader(std::move(body));
    try {
        for (bool isLast = false; !isLast;) {
            std::function<RowBlock<typename Request::Row>()> next = [reader] { return reader->next(); };
            auto block = co_await worker_.run(std::move(next), life_.token());
            if (isClosing() || !block) {
                break;
            }
            const std::size_t newBytes = context_.dictionarySizes().bytes - before.bytes;
            const std::size_t rows = content.lines.size() + block->rows.size();
            if (newBytes > mostNewBytes ||
                bodyBytes + newBytes + rows * Request::rowBytes > mostReportBytes) {
                throw ReportError(ReportError::Reason::tooMuchToKeep);
            }
            co_await encode<Request>(block->rows, content.lines);
            isLast = block->isLast;
            content.isReport = block->hasHeader;
            content.message = std::move(block->message);
        }
    } catch (...) {
        context_.forgetUnsaved(before);
        throw;
    }
    // Only where the copy is small.
    if (content.lines.size() < content.lines.capacity() / 8) {
        content.lines.shrink_to_fit();
    }
    co_return content;
}

// In steps between which the window can move.
template <typename Request>
QCoro::Task<> SyncEngine::encode(std::span<typename Request::Row> rows,
                                 std::vector<typename Request::Line>& lines) {
    // What is never used of the room for a long report costs nothing, while growing step by step would take
    // three times the memory.
    const std::size_t needed = lines.size() + rows.size();
    if (lines.capacity() < needed) {
        lines.reserve(lines.size() < rowsOfLongReport ? 2 * needed : mostReportBytes / Request::rowBytes);
    }
    while (!rows.empty()) {
        const std::size_t count = std::min(rows.size(), rowsAtOnce);
        context_.encode(rows.first(count), lines);
        rows = rows.subspan(count);
        if (!rows.empty()) {
            co_await breathe();
        }
        if (isClosing()) {
            co_return;
        }
    }
}

template <typename Request>
SyncEngine::Applied SyncEngine::apply(const Request& request, const ReportResponse& answer,
                                      Content<Request> content, Instant started) {
    // The record may have changed while the request was out and read, so it is looked up again.
    auto [id, report] = findOrCreate(request);
    if (const auto* limited = std::get_if<response::RateLimited>(&answer)) {
        stopForRateLimit(request.logKey(), limited->message);
        return Applied::rateLimited;
    }
    if (std::holds_alternative<response::Success>(answer) && report.status() == ReportStatus::ok &&
        report.fetchedAt > started && report.fetchedAt <= clock_.now()) {
        log(request.logKey(), "skipped", "A fresher copy synced in from another device.");
        return Applied::skipped;
    }
    settle(request, answer, std::move(content), report);
    report.message = client_.redacted(std::move(report.message));
    report.fetchedAt = clock_.now();
    log(request.logKey(), report.statusRaw, report.message);
    Request::records(context_).update(id, std::move(report));
    return Applied::stored;
}

// What each answer makes of the report. Only good data and the word that there is none touch its rows: a
// failure never loses what was there.
template <typename Request>
void SyncEngine::settle(const Request& request, const ReportResponse& answer, Content<Request> content,
                        typename Request::Record& report) {
    const auto attempted = [&report](ReportStatus status, const std::string& message) {
        report.setStatus(status);
        report.message = message;
    };
    std::visit(
        Overloaded{
            [&](const response::Success&) {
                if (!content.isReport && request.lineCount(context_) > 0) {
                    attempted(ReportStatus::error, notAReport);
                    return;
                }
                request.storeRows(context_, report, std::move(content.lines));
                attempted(ReportStatus::ok, content.isReport ? content.message : notAReport);
            },
            [&](const response::NoSales& none) {
                request.removeRows(context_);
                report.rowCount = 0;
                attempted(ReportStatus::empty, none.message);
            },
            [&](const response::NotYetAvailable& early) { attempted(ReportStatus::pending, early.message); },
            [&](const response::Gone& gone) { attempted(ReportStatus::unavailable, gone.message); },
            [&](const response::WrongVersion& wrong) { attempted(ReportStatus::error, wrong.detail); },
            [&](const response::AuthFailure& refused) {
                attempted(ReportStatus::error, refused.message);
                lastError_ = diagnosticText(answer);
                stopRequested_ = true;
            },
            [](const response::RateLimited&) {},
            [&](const response::Failure& failure) { attempted(ReportStatus::error, failure.message); }},
        answer);
}

// The lines of a long report are written in steps between which the window can move.
QCoro::Task<> SyncEngine::saveInSteps() {
    while (context_.writeAhead()) {
        co_await breathe();
        if (isClosing()) {
            co_return;
        }
    }
    save();
}

void SyncEngine::noteRejected(const ReportName& report, const std::string& reason) {
    if (const auto frequency = reportFrequency(report.group)) {
        settleRejected(SalesReportRequest{*frequency, report.label}, reason);
    } else {
        settleRejected(FinanceReportRequest{report.label}, reason);
    }
}

template <typename Request>
void SyncEngine::settleRejected(const Request& request, const std::string& reason) {
    auto [id, report] = findOrCreate(request);
    report.setStatus(ReportStatus::error);
    report.message = "The report could not be stored: " + reason;
    report.rowCount = request.lineCount(context_);
    log(request.logKey(), report.statusRaw, report.message);
    Request::records(context_).update(id, std::move(report));
}

// The report keeps its status, and so it is due again on the next run.
void SyncEngine::stopForRateLimit(const std::string& key, const std::string& message) {
    lastError_ = "Rate limited by Apple — the run stopped and will resume on the next sync.";
    log(key, "rate-limited", message);
    stopRequested_ = true;
}

void SyncEngine::log(std::string key, std::string_view outcome, std::string_view message) {
    context_.syncLog().insert({.date = clock_.now(),
                               .key = std::move(key),
                               .outcome = std::string(outcome),
                               .message = std::string(firstCharacters(message, loggedCharacters))});
    Q_EMIT syncLogChanged();
}

}  // namespace vantrell
