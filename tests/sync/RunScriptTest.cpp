#include "RunPlan.h"
#include "testing/EngineFixture.h"
#include "testing/Golden.h"

#include <sstream>

#include <QByteArray>

#include <gtest/gtest.h>

// Each text under data is played to an engine: it does what stands behind a "$ ", and below that stands what
// it then asked for, said and keeps. A "plan" is only told, with what it passes over in brackets.

namespace vantrell {
namespace {

using testing::EngineFixture;

class RunScript {
  public:
    [[nodiscard]] std::string played(const std::string& text) {
        std::istringstream lines(text);
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with("$ ")) {
                say(line);
                std::istringstream words(line.substr(2));
                perform(words);
            } else if (line.empty() || line.starts_with("# ")) {
                say(line);
            }
        }
        return transcript_;
    }

  private:
    void say(const std::string& line) { transcript_ += line + "\n"; }

    void perform(std::istringstream& words) {
        const std::string verb = word(words);
        if (verb == "engine") {
            fixture_ = std::make_unique<EngineFixture>("", rest(words));
            start_ = fixture_->clock.now();
            SyncEngine& engine = fixture_->engine();
            QObject::connect(&engine, &SyncEngine::progressChanged, &engine,
                             [&] { told_.push_back("told" + progressOf(engine.progress())); });
        } else if (verb == "stored") {
            store(words);
        } else if (verb == "settled") {
            settle();
        } else if (verb == "answer") {
            answer(words);
        } else if (verb == "at") {
            fixture_->clock.setNow(start_ + std::chrono::microseconds(std::stoll(word(words))));
        } else if (verb == "stop") {
            stopAt_ = rest(words);
        } else if (verb == "forget") {
            fixture_->engine().account().remove();
        } else if (verb == "show") {
            show();
        } else if (verb == "test") {
            const auto test = QCoro::waitFor(fixture_->engine().account().testConnection()).value();
            tellRequests();
            const auto* failure = std::get_if<response::Failure>(&test.answer);
            say("answer " + std::to_string(test.answer.index()) + ", " + std::to_string(test.lines) +
                " lines" + (failure ? ": " + failure->message : ""));
        } else if (verb == "progress") {
            tellAll(std::exchange(told_, {}));
        } else if (verb == "plan") {
            const std::string kind = word(words);
            tellPlan(kind, word(words));
        } else {
            run(verb, word(words));
        }
    }

    static std::string word(std::istringstream& words) {
        std::string word;
        words >> word;
        return word;
    }

    static std::string rest(std::istringstream& words) {
        std::string text;
        std::getline(words >> std::ws, text);
        return QByteArray::fromPercentEncoding(QByteArray::fromStdString(text)).toStdString();
    }

    void store(std::istringstream& words) {
        const std::string kind = word(words);
        const std::string date = word(words);
        const ReportStatus status = reportStatus(word(words));
        if (kind == "FINANCE") {
            fixture_->storeFinance(date, status);
        } else if (kind == "rates") {
            fixture_->context().rateSets().insert(
                {.fetchedAt = start_ - std::chrono::seconds(std::stoll(date)), .rates = {{"CHF", 0.8}}});
        } else {
            const auto answered = dateFromDayKey(word(words));
            fixture_->store(reportFrequency(kind).value(), date, status,
                            answered ? Instant(std::chrono::sys_days(*answered)) : distantPast);
        }
    }

    [[nodiscard]] MonthDoubts monthDoubts() const {
        return {fixture_->context(), fixture_->clock, fixture_->defaults, {}};
    }
    [[nodiscard]] RunBasis basis(const MonthDoubts& doubts) const {
        return {fixture_->clock, ReportCalendar(fixture_->clock, fixture_->localTime), fixture_->context(),
                doubts};
    }

    /// As if every report that the service may still have were stored.
    void settle() {
        const MonthDoubts doubts = monthDoubts();
        const RunBasis basis = this->basis(doubts);
        RunSteps steps = backfillSteps(basis);
        for (const RunStep& step : steps) {
            if (const auto* sales = std::get_if<SalesReportRequest>(&step.request)) {
                fixture_->store(sales->frequency, sales->reportDate, ReportStatus::ok);
            } else if (const auto* finance = std::get_if<FinanceReportRequest>(&step.request)) {
                fixture_->storeFinance(finance->fiscalPeriod, ReportStatus::ok);
            }
        }
    }

    void answer(std::istringstream& words) {
        std::string request;
        std::getline(words >> std::ws, request, ':');
        const std::string status = word(words);
        const std::string text = rest(words);
        HttpResult& answer = request == "otherwise" ? fixture_->otherwise : fixture_->answers[request];
        if (status == "down") {
            answer = HttpFailure{};
        } else if (status == "few-left") {
            answer = EngineFixture::notYet();
            std::get<HttpResponse>(answer).headers = {{"X-Rate-Limit", "user-hour-rem:" + text + ";"}};
        } else if (status == "sales") {
            answer = EngineFixture::sales(std::stoi(text));
        } else if (status == "finance") {
            answer = EngineFixture::finance(text);
        } else if (status == "body" || status == "body-under-503") {
            answer = HttpResponse{status == "body" ? 200 : 503, text};
        } else {
            answer = EngineFixture::error(std::stoi(status), text);
        }
    }

    void run(const std::string& verb, const std::string& what) {
        SyncEngine& engine = fixture_->engine();
        const int writes = fixture_->defaults.writes;
        fixture_->clock.slept.clear();
        fixture_->http.whileWaiting = [this, &engine](const HttpRequest&) {
            if (fixture_->requests().back() == stopAt_) {
                engine.requestStop();
            }
        };
        fixture_->run(verb == "sync"       ? engine.runSync()
                      : verb == "backfill" ? engine.runBackfill()
                      : verb == "auto"     ? engine.autoSyncIfDue()
                      : verb == "begin"    ? engine.backfillIfEmpty()
                      : verb == "day"      ? engine.refetchDay(dateFromDayKey(what).value())
                      : verb == "month"    ? engine.refetchMonth(what)
                      : verb == "finance"  ? engine.refetchFinance(what)
                      : verb == "rates"    ? engine.refreshRates(what == "force")
                                           : throw std::runtime_error("no verb: " + verb));
        tellRequests();
        tell("pauses", std::to_string(fixture_->clock.slept.size()), "0");
        tell("settings written", std::to_string(fixture_->defaults.writes - writes), "0");
        constexpr const char* errors[] = {"no key",       "damaged store", "no month",        "key refused: ",
                                          "rate limited", "unreachable",   "nothing stored: "};
        if (const auto error = engine.lastError()) {
            say(std::string("error: ") + errors[static_cast<std::size_t>(error->kind)] + error->detail);
        }
        constexpr const char* runs[] = {"Sync", "Backfill", "Re-fetch"};
        if (const auto last = engine.lastRun()) {
            say(std::string("summary: ") + runs[static_cast<std::size_t>(last->kind)] +
                (last->firstProblem
                     ? ", " + std::to_string(last->failed) + " failed: " + last->firstProblem->message
                     : ""));
        }
        EXPECT_FALSE(engine.progress());
        EXPECT_FALSE(engine.isSyncing());
        EXPECT_EQ(std::ranges::count(fixture_->clock.slept, std::chrono::milliseconds(150)),
                  std::ssize(fixture_->clock.slept));
    }

    void tell(const std::string& name, const std::string& text, const std::string& usual) {
        if (text != usual) {
            say(name + ": " + text);
        }
    }

    void tellPlan(const std::string& verb, const std::string& what) {
        const MonthDoubts doubts = monthDoubts();
        const RunBasis basis = this->basis(doubts);
        RunSteps steps = verb == "sync"       ? ordinarySteps(basis)
                         : verb == "backfill" ? backfillSteps(basis)
                                              : monthAgain(parseYearMonth(what).value(), what, basis);
        std::vector<std::string> lines;
        for (const RunStep& step : steps) {
            const std::string key = std::visit([](const auto& one) { return one.logKey(); }, step.request);
            lines.push_back((step.isDue ? key : "(" + key + ")") + progressOf(step.progress));
        }
        tellAll(lines);
    }

    static std::string progressOf(const std::optional<RunProgress>& progress) {
        constexpr const char* parts[] = {": days", ": months", ": years", ": finance", ": again", ": period"};
        const std::string item = progress && !progress->item.empty() ? " " + progress->item : "";
        const bool isShareTold = progress && progress->fraction;
        return (progress ? parts[static_cast<std::size_t>(progress->part)] : "") + item +
               (isShareTold ? " " + std::to_string(*progress->fraction).substr(0, 5) : "");
    }

    void tellRequests() { tellAll(fixture_->takeRequests()); }

    /// Each request, and of a long row of one kind the first and the last.
    void tellAll(const std::vector<std::string>& requests) {
        const auto kind = [](const std::string& request) {
            return request.substr(0, request.find_first_of("0123456789"));
        };
        for (auto first = requests.begin(); first != requests.end();) {
            const auto end = std::find_if(first, requests.end(),
                                          [&](const auto& request) { return kind(request) != kind(*first); });
            if (end - first > 14) {
                say(*first + " and so on, " + std::to_string(end - first) + " in all, to " + *std::prev(end));
            } else {
                std::for_each(first, end, [this](const auto& request) { say(request); });
            }
            first = end;
        }
    }

    void show() {
        ModelContext& context = fixture_->context();
        for (const auto& [id, report] : context.salesReports().all()) {
            say(report.frequencyRaw + " " + report.reportDate + ": " + report.statusRaw + ", " +
                std::to_string(report.rowCount) + " rows" +
                (report.fetchedAt == distantPast ? ", never fetched: " : ": ") + report.message);
        }
        const auto day = [](std::optional<Instant> date) {
            return !date                  ? "nothing"
                   : *date == distantPast ? "the distant past"
                                          : dayKey(CivilDate(std::chrono::floor<std::chrono::days>(*date)));
        };
        for (const auto& [id, report] : context.financeReports().all()) {
            say("FINANCE " + report.fiscalPeriod + ": " + report.statusRaw + ", from " +
                day(report.startDate) + " to " + day(report.endDate));
        }
        for (const auto& [id, set] : context.rateSets().all()) {
            const auto age = std::chrono::floor<std::chrono::seconds>(fixture_->clock.now() - set.fetchedAt);
            std::string rates = "rates of " + std::to_string(age.count()) + " seconds ago:";
            for (const auto& [code, rate] : set.rates) {
                rates += " " + code + "=" + std::to_string(rate);
            }
            say(rates);
        }
        for (const auto& [id, entry] : context.syncLog().all()) {
            say("log: " + entry.key + ": " + entry.outcome + ": " + entry.message);
        }
        tell("lines", std::to_string(context.fetchSalesRows().size()), "0");
        tell("revision", std::to_string(fixture_->engine().revision()), "0");
        tell("unsaved", context.hasChanges() ? "yes" : "no", "no");
    }

    std::string transcript_;
    std::unique_ptr<EngineFixture> fixture_;
    Instant start_;
    std::vector<std::string> told_;
    std::string stopAt_;
};

TEST(RunScript, EachTextIsWhatTheEngineAskedForSaidAndKept) {
    const auto scripts = testing::filesIn(VANTRELL_TEST_DATA, ".txt");
    EXPECT_FALSE(scripts.empty());
    for (const auto& script : scripts) {
        testing::expectMatchesFile(RunScript().played(testing::fileText(script)), script);
    }
}

}  // namespace
}  // namespace vantrell
