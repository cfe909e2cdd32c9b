#include "base/SystemClock.h"
#include "data/ModelContainer.h"
#include "figures/EarningsStore.h"
#include "figures/SalesSelection.h"
#include "files/JsonDefaults.h"
#include "keys/KeyPair.h"
#include "sample/ReportPeriods.h"
#include "sample/SampleService.h"
#include "sample/SampleTotals.h"
#include "testing/Cases.h"
#include "testing/Golden.h"
#include "testing/PlainClient.h"
#include "testing/TemporaryFolder.h"
#include "trial/TrialProgram.h"

#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::TemporaryFolder;

/// A sample service of the test's own, which remembers what it was asked, and runs of the trial program
/// against it over one folder.
class Trial {
  public:
    TrialEnd run(TrialOperation operation = DoAutomaticRun(),
                 const std::optional<std::filesystem::path>& exports = std::nullopt) {
        TrialOptions options;
        options.exports = exports;
        options.service = service_.origin();
        options.key = keys_.privatePEM;
        options.data = folder_.path();
        options.operation = std::move(operation);
        options.currency = "EUR";
        options.pause = std::chrono::microseconds(0);
        service_.log().clear();
        output_.str("");
        errors_.str("");
        return runTrial(options, output_, errors_);
    }

    [[nodiscard]] const sample::RequestLog& log() { return service_.log(); }
    [[nodiscard]] const sample::SampleAccount& account() const { return account_; }
    [[nodiscard]] sample::SampleService& service() { return service_; }
    [[nodiscard]] std::filesystem::path folder() const { return folder_.path(); }
    [[nodiscard]] std::string output() const { return output_.str(); }
    [[nodiscard]] std::string errors() const { return errors_.str(); }

  private:
    TemporaryFolder folder_;
    SystemClock clock_;
    KeyPair keys_ = generateKeyPair();
    sample::SampleAccount account_{{.ordersPerDay = 20}};
    sample::SampleService service_{
        account_,
        {"3f7a91c2-5d04-4be8-9a16-c07e2d8b4f15", "7QK2MZ8T5W", "60419372", keys_.publicPEM},
        clock_};
    std::ostringstream output_;
    std::ostringstream errors_;
};

/// The figures that the program works out from a folder's store.
class Figures {
  public:
    explicit Figures(const std::filesystem::path& folder) : defaults_(folder / "defaults.json") {
        auto opened = ModelContainer::open({folder / "vantrell.sqlite", CloudDatabase::none, {}});
        container_ = std::move(std::get<std::unique_ptr<ModelContainer>>(opened));
        store_.reload(container_->mainContext());
    }
    EarningsStore& store() { return store_; }
    ModelContext& context() { return container_->mainContext(); }

  private:
    SystemClock clock_;
    HostLocalTime localTime_;
    Locale locale_{LocaleNames{"C", "C", "C", "C", "C"}};
    ReportCalendar calendar_{clock_, localTime_};
    JsonDefaults defaults_;
    EarningsStore store_{defaults_, locale_, calendar_};
    std::unique_ptr<ModelContainer> container_;
};

TEST(TrialProgram, AsksInASecondRunOnlyForWhatIsDue) {
    Trial trial;
    ASSERT_EQ(trial.run(), TrialEnd::done) << trial.errors();
    EXPECT_GT(trial.log().count(), 400U);
    EXPECT_EQ(trial.log().count("/v6/latest/USD"), 1U);
    EXPECT_NE(trial.output().find("\nAll time · Since 2020: "), std::string::npos) << trial.output();
    // What an ordinary run has to ask for follows from what is stored.
    std::size_t due = 2;  // the two fiscal periods after the newest
    {
        Figures figures(trial.folder());
        EXPECT_EQ(figures.store().displayCurrency(), "EUR");
        for (const std::string& year : figures.store().snapshot()->yearlyOKLabels) {
            const auto days = *sample::reportDays(sample::ReportKind::yearly, year);
            EXPECT_EQ(reportRows(figures.store().snapshot(), ReportFrequency::yearly, year, {})
                          .aggregate()
                          .appUnits,
                      sample::salesTotals(trial.account(), days).appUnits)
                << year;
        }
        for (int offset = 1; offset <= 14; ++offset) {
            const ReportStatus status =
                figures.store().snapshot()->dailyStatuses.at(figures.store().calendar().dayKey(offset));
            due +=
                status == ReportStatus::pending || (status == ReportStatus::empty && offset <= 3) ? 1U : 0U;
        }
    }
    ASSERT_EQ(trial.run(), TrialEnd::done) << trial.errors();
    EXPECT_EQ(trial.log().count("/v1/financeReports"), 2U);
    EXPECT_EQ(trial.log().count("/v6/latest/USD"), 0U) << "the rates are fresh";
    EXPECT_EQ(trial.log().count("/v1/"), due + trial.log().count("/v1/salesReports?version"));
}

TEST(TrialProgram, DoesOneNamedOperation) {
    Trial trial;
    EXPECT_EQ(trial.run(DoTest()), TrialEnd::done);
    EXPECT_EQ(trial.log().count(), 1U);
    EXPECT_FALSE(trial.output().empty());
    EXPECT_EQ(trial.run(DoRates()), TrialEnd::done);
    EXPECT_EQ(trial.log().count(), 1U);
    EXPECT_EQ(trial.log().count("/v6/latest/USD"), 1U);
    EXPECT_EQ(trial.run(DoFinance{"2026-01"}), TrialEnd::done);
    EXPECT_EQ(trial.log().count("/v1/financeReports"), 1U);
    EXPECT_EQ(trial.run(DoMonth{"August"}), TrialEnd::runFailed);
    EXPECT_EQ(trial.errors(), "Use a month like 2026-08.\n");
}

TEST(TrialProgram, SaysInItsExitCodeAndLastLineWhatWentWrong) {
    Trial trial;
    trial.service().faults().answerNext(401, R"({"errors":[{"detail":"No\nway."}]})");
    EXPECT_EQ(trial.run(), TrialEnd::runFailed);
    EXPECT_NE(trial.errors().find("\nAuthentication failed — HTTP 401: No way.. Check"), std::string::npos)
        << trial.errors();
    {
        Figures inUse(trial.folder());
        EXPECT_EQ(trial.run(), TrialEnd::noStore);
        EXPECT_EQ(trial.errors(),
                  "Could not create the model container: the store is in use by another process\n");
    }
    testing::changed(trial.folder() / "vantrell.sqlite", "UPDATE sales_report SET rowCount = 7 WHERE id = 1");
    EXPECT_EQ(trial.run(DoRates(), trial.folder() / "csv"), TrialEnd::notStored);
    EXPECT_NE(trial.errors().find("This store is damaged: the daily report of "), std::string::npos)
        << trial.errors();
    EXPECT_FALSE(std::filesystem::exists(trial.folder() / "csv")) << "figures with holes are not exported";
    std::ofstream(trial.folder() / "vantrell.sqlite") << "my diary";
    EXPECT_EQ(trial.run(), TrialEnd::noStore);
    EXPECT_EQ(trial.errors(), "Could not create the model container: file is not a database\n");
}

TEST(TrialProgram, WritesItsExportsAlsoAfterARunThatFailed) {
    Trial trial;
    const TemporaryFolder target;
    EXPECT_EQ(trial.run(DoRates(), target / "new/csv"), TrialEnd::done) << trial.errors();
    EXPECT_EQ(testing::filesIn(target / "new/csv", ".csv").size(), 5U);
    EXPECT_TRUE(testing::fileText(target / "new/csv/vantrell-years.csv").ends_with("proceeds_by_currency\n"));
    EXPECT_EQ(trial.run(DoMonth{"August"}, target / "failed"), TrialEnd::runFailed);
    EXPECT_EQ(testing::filesIn(target / "failed", ".csv").size(), 5U);
    std::ofstream(target / "file") << "in the way";
    EXPECT_EQ(trial.run(DoRates(), target / "file"), TrialEnd::notWritten);
    EXPECT_NE(trial.errors().find(target / "file"), std::string::npos) << trial.errors();
    EXPECT_EQ(trial.run(DoMonth{"August"}, target / "file"), TrialEnd::runFailed);
    EXPECT_TRUE(trial.errors().ends_with("\nUse a month like 2026-08.\n")) << trial.errors();
}

TEST(TrialProgram, DoesNotRunWithAnEmptyKey) {
    TemporaryFolder folder;
    std::ofstream(folder / "empty.p8").flush();
    const auto options = parseTrialOptions({"--once", "--key", folder / "empty.p8", "--data", folder / "data",
                                            "--pause", "0", "--service", "http://127.0.0.1:1/"});
    ASSERT_TRUE(std::holds_alternative<TrialOptions>(options));
    std::ostringstream output;
    std::ostringstream errors;
    EXPECT_EQ(runTrial(std::get<TrialOptions>(options), output, errors), TrialEnd::runFailed);
    EXPECT_EQ(errors.str(), "Add your App Store Connect key in Settings first.\n");
}

TEST(TrialOptions, RefuseWhatTheyCanNotUnderstand) {
    const auto table = std::filesystem::path(VANTRELL_TEST_DATA) / "wrong-options.tsv";
    for (const auto& cells : testing::linesOfCases(table, 1)) {
        std::istringstream words(cells[0]);
        const std::vector<std::string> arguments{std::istream_iterator<std::string>(words), {}};
        EXPECT_TRUE(std::holds_alternative<UsageError>(parseTrialOptions(arguments))) << cells[0];
    }
    const auto options = parseTrialOptions({"--do", "month=2026-08", "--pause", "0.5"});
    ASSERT_TRUE(std::holds_alternative<TrialOptions>(options));
    EXPECT_EQ(std::get<TrialOptions>(options).pause, std::chrono::milliseconds(500));
    EXPECT_EQ(std::get<DoMonth>(std::get<TrialOptions>(options).operation).text, "2026-08");
}

}  // namespace
}  // namespace vantrell
