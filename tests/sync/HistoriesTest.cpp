#include "calendar/FiscalWeeks.h"
#include "testing/EngineFixture.h"
#include "testing/FaultyVfs.h"

#include <algorithm>
#include <functional>
#include <map>

#include <gtest/gtest.h>
#include <sqlite3.h>

// Whatever comes between, a store that is used again ends like one that was used undisturbed.

namespace vantrell {
namespace {

using std::chrono::days;
using std::chrono::hours;
using std::chrono::sys_days;
using testing::EngineFixture;

constexpr days keptDays{366};
constexpr auto roundLength = hours(24);

/// What the service answers at some time: a report comes some days after its end and goes after a year; now
/// and then one is said to be without sales at first.
class Service {
  public:
    [[nodiscard]] static HttpResult answer(const std::string& request, Instant now) {
        const std::string kind = request.substr(0, request.find(' '));
        const std::string label = request.substr(request.find(' ') + 1);
        if (kind == "FINANCE") {
            return published(lastDayOfFiscalPeriod(label).value(), days(33), days::max(), now, label, true);
        }
        if (kind == "YEARLY") {
            const days kept = label < "2016" ? days(0) : days::max();
            return published(std::chrono::year(std::stoi(label)) / 12 / 31, days(6), kept, now, label);
        }
        const CivilDate first = dateFromDayKey(kind == "DAILY" ? label : label + "-01").value();
        const CivilDate last = kind == "DAILY" ? first : first.year() / first.month() / std::chrono::last;
        const HttpResult answer = published(last, days(kind == "DAILY" ? 0 : 5), keptDays, now, label);
        const auto* const report = std::get_if<HttpResponse>(&answer);
        return kind == "MONTHLY" && report != nullptr && report->status == 200 ? ofItsDays(first, last)
                                                                               : answer;
    }

  private:
    static std::size_t chanceOf(const std::string& label) { return std::hash<std::string>()(label); }
    static bool hasNoSales(const std::string& label) { return chanceOf(label) % 7 == 0; }
    static int linesOf(const std::string& label) { return static_cast<int>(chanceOf(label) % 3) + 1; }
    static HttpResult ofItsDays(CivilDate first, CivilDate last) {
        int lines = 0;
        for (const KeyedDay& day : vantrell::days(dayKey(first), dayKey(last))) {
            lines += hasNoSales(day.key) ? 0 : linesOf(day.key);
        }
        return EngineFixture::sales(lines);
    }
    static HttpResult published(CivilDate lastDay, days delay, days kept, Instant now,
                                const std::string& label, bool isPeriod = false) {
        const auto end = sys_days(lastDay) + days(1) + hours(9);
        if (now < end + delay) {
            return EngineFixture::notYet();
        }
        if (kept != days::max() && now >= end + kept) {
            return EngineFixture::error(410, "Report is no longer available.");
        }
        if (hasNoSales(label) || (chanceOf(label) % 5 == 0 && now < end + delay + days(2))) {
            return EngineFixture::error(404, "There were no sales for the date specified.");
        }
        return isPeriod ? EngineFixture::finance("") : EngineFixture::sales(linesOf(label));
    }
};

/// Somebody's use of the program, which is started once a day.
class Use {
  public:
    explicit Use(const std::string& vfs = {}) : fixture_(vfs) {
        fixture_.http.respond = [this](const HttpRequest& request) { return answer(request); };
    }

    void until(Instant end) {
        while (fixture_.clock.now() < end) {
            fixture_.run(fixture_.engine().autoSyncIfDue());
            fixture_.clock.setNow(std::min(fixture_.clock.now() + roundLength, end));
        }
    }
    void forDays(int count) { until(fixture_.clock.now() + days(count)); }
    void awayFor(int count) { fixture_.clock.advance(days(count)); }
    void killed() {
        fixture_.clock.autoAdvance = false;
        fixture_.tasks().spawn(fixture_.engine().autoSyncIfDue());
        fixture_.clock.advance(std::chrono::seconds(30));
        fixture_.restart();
        fixture_.clock.autoAdvance = true;
    }

    EngineFixture& fixture() { return fixture_; }
    std::function<std::optional<HttpResult>(std::size_t number)> instead;  ///< of the service's own answer

    /// Each report that lies within every span, with its status and its lines.
    [[nodiscard]] std::map<std::string, std::string> reports() {
        std::map<std::string, std::string> result;
        const CivilDate oldest = *movedByDays(today(), -300);
        ModelContext& context = fixture_.context();
        for (const auto& [id, report] : context.salesReports().all()) {
            const std::string key = report.frequencyRaw + " " + report.reportDate;
            const ReportFrequency frequency = reportFrequency(report.frequencyRaw).value();
            if (frequency == ReportFrequency::yearly || report.reportDate >= reportLabel(oldest, frequency)) {
                result[key] =
                    report.statusRaw + " " + std::to_string(report.rowCount) + " " +
                    std::to_string(context.salesLines().lineCount(report.frequencyRaw, report.reportDate));
            }
        }
        for (const auto& [id, report] : context.financeReports().all()) {
            result["FINANCE " + report.fiscalPeriod] = report.statusRaw;
        }
        return result;
    }

  private:
    [[nodiscard]] CivilDate today() const { return fixture_.localTime.zone().dateAt(fixture_.clock.now()); }

    HttpResult answer(const HttpRequest& request) {
        const auto other = instead ? instead(fixture_.http.requests.size()) : std::nullopt;
        const std::string asked = EngineFixture::shortForm(request);
        return other              ? *other
               : asked == "rates" ? fixture_.answers.at("rates")
                                  : Service::answer(asked, fixture_.clock.now());
    }

    EngineFixture fixture_;
};

/// What stands in only one of the two, or not alike.
std::string differences(const std::map<std::string, std::string>& one,
                        const std::map<std::string, std::string>& other) {
    std::string text;
    const auto tell = [&text](const char* sign, const auto& from, const auto& to) {
        for (const auto& [key, value] : from) {
            const auto found = to.find(key);
            if (found == to.end() || found->second != value) {
                text += sign + key + " " + value + "\n";
            }
        }
    };
    tell("+", one, other);
    tell("-", other, one);
    return text;
}

auto during(std::size_t from, std::size_t to, const HttpResult& answer) {
    return [=](std::size_t number) {
        return number >= from && number < to ? std::optional(answer) : std::nullopt;
    };
}

TEST(Histories, EndAsIfNothingHadComeBetween) {
    constexpr int daysOfUse = 60;
    constexpr int daysAway = 75;
    const Instant start = testing::ManualClock().now();
    testing::FaultyVfs disk("faulty-histories");
    const struct {
        const char* name;
        std::function<void(Use&)> comesBetween;
    } histories[] = {
        {"a stop",
         [](Use& use) {
             use.instead = [&use](std::size_t number) {
                 if (number == 100) {
                     use.fixture().engine().requestStop();
                 }
                 return std::optional<HttpResult>();
             };
         }},
        {"an end by force", [](Use& use) { use.killed(); }},
        {"a rate limit",
         [](Use& use) { use.instead = during(100, 103, EngineFixture::error(429, "Too many requests.")); }},
        {"no network", [](Use& use) { use.instead = during(100, 160, HttpFailure{}); }},
        {"a refused key", [](Use& use) { use.instead = during(300, 303, EngineFixture::error(401, "No.")); }},
        {"errors of the service",
         [](Use& use) { use.instead = during(80, 300, EngineFixture::error(500, "Try later.")); }},
        {"a full disk",
         [&disk](Use& use) {
             use.instead = [&disk](std::size_t number) {
                 disk.failWritesFrom(number >= 100 && number < 500 ? 1 : 0, SQLITE_FULL);
                 return std::optional<HttpResult>();
             };
             use.forDays(1);
             use.fixture().restart();
         }},
        {"two and a half months away",
         [](Use& use) {
             use.forDays(2);
             use.awayFor(daysAway);
         }},
        {"as long away in the middle of the first run",
         [](Use& use) {
             use.killed();
             use.awayFor(daysAway);
         }},
    };
    Use undisturbed;
    std::map<Instant, std::map<std::string, std::string>> expected;
    for (const int length : {daysOfUse, daysAway + daysOfUse}) {
        undisturbed.until(start + days(length));
        expected[undisturbed.fixture().clock.now()] = undisturbed.reports();
    }
    for (const auto& [name, comesBetween] : histories) {
        SCOPED_TRACE(name);
        Use use(std::string(name) == "a full disk" ? disk.name() : "");
        comesBetween(use);
        const bool wasAway = use.fixture().clock.now() > start + days(daysAway);
        use.until(start + days(wasAway ? daysAway + daysOfUse : daysOfUse));
        EXPECT_GT(use.reports().size(), 300U);
        EXPECT_EQ(differences(use.reports(), expected.at(use.fixture().clock.now())), "");
        use.fixture().takeRequests();
        use.forDays(1);
        EXPECT_LT(use.fixture().takeRequests().size(), 24U) << "what is settled is not asked for again";
    }
}

}  // namespace
}  // namespace vantrell
