#include "base/SystemClock.h"
#include "data/ModelContainer.h"
#include "keys/KeyPair.h"
#include "sample/SampleService.h"
#include "testing/Cases.h"
#include "testing/Golden.h"
#include "testing/PlainClient.h"
#include "testing/TemporaryFolder.h"
#include "trial/TrialProgram.h"

#include <fstream>
#include <iterator>
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

TEST(TrialProgram, AsksInASecondRunOnlyForWhatIsDue) {
    Trial trial;
    ASSERT_EQ(trial.run(), TrialEnd::done) << trial.errors();
    EXPECT_GT(trial.log().count(), 400U);
    EXPECT_EQ(trial.log().count("/v6/latest/USD"), 1U);
    EXPECT_NE(trial.output().find("\nAll time · Since 2020: "), std::string::npos) << trial.output();
    ASSERT_EQ(trial.run(), TrialEnd::done) << trial.errors();
    EXPECT_EQ(trial.log().count("/v1/financeReports"), 2U);
    EXPECT_EQ(trial.log().count("/v6/latest/USD"), 0U) << "the rates are fresh";
    EXPECT_LT(trial.log().count(), 20U);
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
        const auto inUse =
            ModelContainer::open({trial.folder() / "vantrell.sqlite", CloudDatabase::none, {}});
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
