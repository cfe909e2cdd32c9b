#include "Intake.h"

#include "base/Characters.h"
#include "base/Overloaded.h"
#include "currency/RatesFetcher.h"
#include "reports/ReportError.h"

#include <algorithm>
#include <memory>
#include <new>
#include <span>
#include <stdexcept>
#include <utility>
#include <vector>

namespace vantrell {
namespace {

constexpr std::size_t keptLogEntries = 2000;
constexpr std::size_t loggedCharacters = 1000;
// A few milliseconds' work.
constexpr std::size_t rowsAtOnce = 4'000;
constexpr std::size_t rowsOfLongReport = 100'000;
// What one report may take besides a few megabytes: its body, its rows, and new texts and offers, which are
// then taken twice, by the store and by the figures.
constexpr std::size_t mostReportBytes = std::size_t{160} << 20U;
constexpr std::size_t mostNewBytes = std::size_t{48} << 20U;
constexpr const char* notEnoughMemory = "There is not enough memory for the report.";

template <typename Request>
auto findOrCreate(ModelContext& context, const Request& request) {
    auto& records = Request::records(context);
    if (auto found = records.find(request.recordKey())) {
        return *std::move(found);
    }
    auto record = request.newRecord();
    const RecordID id = records.insert(record);
    return Stored<decltype(record)>{id, std::move(record)};
}

}  // namespace

void FinanceReportRequest::note(FinanceReport& report, const std::vector<Line>& lines) {
    report.startDate.reset();
    report.endDate.reset();
    for (const Line& line : lines) {
        if (line.startDate > distantPast) {
            report.startDate = std::min(report.startDate.value_or(line.startDate), line.startDate);
        }
        report.endDate = std::max(report.endDate.value_or(line.endDate), line.endDate);
    }
}

/// One report on its way.
template <typename Request>
class Intake::OneReport {
  public:
    OneReport(Intake& intake, Request request) : intake_(intake), request_(std::move(request)) {}

    [[nodiscard]] QCoro::Task<IntakeResult> take() {
        const Instant started = parts_.clock.now();
        ReportResponse answer;
        try {
            answer = co_await request_.fetch(parts_.client, parts_.end);
            if (auto* const success = std::get_if<response::Success>(&answer)) {
                co_await read(std::move(success->body));
            }
        } catch (const ReportError& error) {
            answer = response::Failure{error.what()};
        } catch (const std::bad_alloc&) {
            answer = response::Failure{notEnoughMemory};
        } catch (const std::length_error&) {
            answer = response::Failure{notEnoughMemory};
        }
        if (intake_.isEnded()) {
            co_return IntakeResult();
        }
        const IntakeResult result = apply(answer, started);
        // The lines of a long report are written in steps between which the window can move.
        while (result.isStored && context_.writeAhead()) {
            co_await intake_.breathe();
            if (intake_.isEnded()) {
                co_return result;
            }
        }
        if (result.isStored) {
            intake_.save();
        }
        co_return result;
    }

  private:
    using Record = decltype(std::declval<Request>().newRecord());
    using Row = typename Request::Row;

    // Beside the window, a block of rows at a time. What a report that can't be kept has left in the
    // dictionaries is forgotten.
    [[nodiscard]] QCoro::Task<> read(std::string body) {
        const std::size_t bodyBytes = body.size();
        const DictionarySizes before = context_.dictionarySizes();
        const std::shared_ptr<ReportReader<Row>> reader = Request::reader(std::move(body));
        try {
            for (bool isLast = false; !isLast;) {
                std::function<RowBlock<Row>()> next = [reader] { return reader->next(); };
                auto block = co_await parts_.worker.run(std::move(next), parts_.end);
                if (!block) {
                    break;
                }
                const std::size_t newBytes = context_.dictionarySizes().bytes - before.bytes;
                const std::size_t rows = lines_.size() + block->rows.size();
                if (newBytes > mostNewBytes ||
                    bodyBytes + newBytes + rows * Request::rowBytes > mostReportBytes) {
                    throw ReportError(ReportError::Reason::tooMuchToKeep);
                }
                co_await encode(block->rows);
                isLast = block->isLast;
                isReport_ = block->hasHeader;
                message_ = std::move(block->message);
            }
        } catch (...) {
            context_.forgetUnsaved(before);
            throw;
        }
        // Only where the copy is small.
        if (lines_.size() < lines_.capacity() / 8) {
            lines_.shrink_to_fit();
        }
    }

    // In steps between which the window can move.
    [[nodiscard]] QCoro::Task<> encode(std::span<Row> rows) {
        // What is never used of the room for a long report costs nothing, while growing step by step would
        // take three times the memory.
        const std::size_t needed = lines_.size() + rows.size();
        if (lines_.capacity() < needed) {
            lines_.reserve(lines_.size() < rowsOfLongReport ? 2 * needed
                                                            : mostReportBytes / Request::rowBytes);
        }
        while (!rows.empty() && !intake_.isEnded()) {
            const std::size_t count = std::min(rows.size(), rowsAtOnce);
            context_.encode(rows.first(count), lines_);
            rows = rows.subspan(count);
            if (!rows.empty()) {
                co_await intake_.breathe();
            }
        }
    }

    IntakeResult apply(const ReportResponse& answer, Instant started) {
        // The record may have changed while the request was out and read, so it is looked up again.
        auto [id, report] = findOrCreate(context_, request_);
        // The report keeps its status, and so it is due again on the next run.
        if (const auto* limited = std::get_if<response::RateLimited>(&answer)) {
            intake_.log(request_.logKey(), "rate-limited", limited->message);
            return {false, RunFailure{RunFailure::Kind::rateLimited}};
        }
        if (parts_.othersWrite && std::holds_alternative<response::Success>(answer) &&
            report.status() == ReportStatus::ok && report.fetchedAt > started &&
            report.fetchedAt <= parts_.clock.now()) {
            intake_.log(request_.logKey(), "skipped", "A fresher copy synced in from another device.");
            return {};
        }
        IntakeResult result{true};
        if (const auto* refused = std::get_if<response::AuthFailure>(&answer)) {
            result.failure =
                RunFailure{RunFailure::Kind::keyRefused, refused->message, {}, refused->clockAhead};
        }
        settle(answer, report);
        report.message = parts_.client.redacted(std::move(report.message));
        report.fetchedAt = parts_.clock.now();
        if (report.status() == ReportStatus::error) {
            const auto* const failed = std::get_if<response::Failure>(&answer);
            result.problem = ReportProblem{report.message, failed ? failed->unheard : std::nullopt};
        }
        intake_.log(request_.logKey(), report.statusRaw, report.message);
        Request::records(context_).update(id, std::move(report));
        return result;
    }

    // What each answer makes of the report. Only good data and the word that there is none touch its rows: a
    // failure never loses what was there.
    void settle(const ReportResponse& answer, Record& report) {
        using enum ReportStatus;
        const auto noted = [&report](ReportStatus status, const std::string& message) {
            report.setStatus(status);
            report.message = message;
        };
        std::visit(Overloaded{[&](const response::Success&) {
                                  if (!isReport_ && request_.lineCount(context_) > 0) {
                                      noted(error, notAReport);
                                      return;
                                  }
                                  noted(ok, isReport_ ? message_ : notAReport);
                                  if (!lines_.empty() || areOldLinesKept(report)) {
                                      store(report);
                                  }
                              },
                              [&](const response::NoSales& none) {
                                  noted(empty, none.message);
                                  if (areOldLinesKept(report)) {
                                      report.rowCount = 0;
                                      request_.replaceLines(context_, {});
                                  }
                              },
                              [&](const response::NotYetAvailable& early) { noted(pending, early.message); },
                              [&](const response::Gone& gone) { noted(unavailable, gone.message); },
                              [&](const response::WrongVersion& wrong) { noted(error, wrong.detail); },
                              [&](const response::AuthFailure& refused) { noted(error, refused.message); },
                              [](const response::RateLimited&) {},
                              [&](const response::Failure& failure) { noted(error, failure.message); }},
                   answer);
    }

    /// Nothing comes in the place of lines, which may be the only copy: they go into a file, or they stay.
    [[nodiscard]] bool areOldLinesKept(Record& report) {
        if (request_.lineCount(context_) == 0) {
            return true;
        }
        const LinesFile file = request_.keepLines(context_, parts_.keptLines);
        if (file.problem) {
            report.setStatus(ReportStatus::error);
            report.message = "The stored lines could not be kept in backup/: " + *file.problem;
            return false;
        }
        report.message += (report.message.empty() ? "" : " ") +
                          std::string("What was stored before is kept in backup/") + file.name + ".";
        return true;
    }

    void store(Record& report) {
        report.rowCount = static_cast<std::int64_t>(lines_.size());
        Request::note(report, lines_);
        request_.replaceLines(context_, std::move(lines_));
    }

    Intake& intake_;
    const IntakeParts& parts_ = intake_.parts_;
    ModelContext& context_ = parts_.context;
    const Request request_;
    // What the report says.
    std::vector<typename Request::Line> lines_;
    bool isReport_ = false;
    std::string message_;
};

QCoro::Task<IntakeResult> Intake::take(SalesReportRequest request) {
    OneReport<SalesReportRequest> report(*this, std::move(request));
    co_return co_await report.take();
}

QCoro::Task<IntakeResult> Intake::take(FinanceReportRequest request) {
    OneReport<FinanceReportRequest> report(*this, std::move(request));
    co_return co_await report.take();
}

QCoro::Task<IntakeResult> Intake::take(RatesRequest request) {
    auto fetched = co_await RatesFetcher::fetch(parts_.http, parts_.rateService, parts_.end);
    if (isEnded()) {
        co_return {};
    }
    auto* const rates = std::get_if<Rates>(&fetched);
    if (rates == nullptr) {
        log(request.logKey(), "error", std::get<RatesError>(fetched).description);
    } else {
        log(request.logKey(), "ok", std::to_string(rates->size()) + " currencies against USD");
        auto& sets = parts_.context.rateSets();
        const RecordID id = sets.all().empty() ? sets.insert({}) : sets.all().begin()->first;
        RateSet set = sets.all().at(id);
        set.rates = std::move(*rates);
        set.fetchedAt = parts_.clock.now();
        sets.update(id, std::move(set));
    }
    save();
    co_return IntakeResult{rates != nullptr};
}

void Intake::save() {
    for (auto error = parts_.context.save(); error && error->report; error = parts_.context.save()) {
        if (const auto frequency = reportFrequency(error->report->group)) {
            noteRejected(SalesReportRequest{*frequency, error->report->label}, error->description);
        } else {
            noteRejected(FinanceReportRequest{error->report->label}, error->description);
        }
    }
}

template <typename Request>
void Intake::noteRejected(const Request& request, const std::string& reason) {
    auto [id, report] = findOrCreate(parts_.context, request);
    report.setStatus(ReportStatus::error);
    report.message = "The report could not be stored: " + reason;
    report.rowCount = request.lineCount(parts_.context);
    log(request.logKey(), report.statusRaw, report.message);
    Request::records(parts_.context).update(id, std::move(report));
}

void Intake::log(std::string key, std::string_view outcome, std::string_view message) {
    parts_.context.syncLog().insert({.date = parts_.clock.now(),
                                     .key = std::move(key),
                                     .outcome = std::string(outcome),
                                     .message = std::string(firstCharacters(message, loggedCharacters))});
    parts_.onLogged();
}

void Intake::pruneLog() {
    auto& entries = parts_.context.syncLog();
    if (entries.all().size() <= keptLogEntries) {
        return;
    }
    std::vector<std::pair<Instant, RecordID>> newestFirst;
    for (const auto& [id, entry] : entries.all()) {
        newestFirst.emplace_back(entry.date, id);
    }
    std::ranges::sort(newestFirst, std::greater());
    for (std::size_t index = keptLogEntries; index < newestFirst.size(); ++index) {
        entries.remove(newestFirst[index].second);
    }
    parts_.onLogged();
}

QCoro::Task<> Intake::breathe() {
    return parts_.clock.sleep(std::chrono::microseconds::zero(), parts_.end);
}

}  // namespace vantrell
