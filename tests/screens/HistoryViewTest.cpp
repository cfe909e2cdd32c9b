#include "BlockText.h"
#include "TablesFixture.h"
#include "screens/HistoryView.h"

#include <QAbstractItemModelTester>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

TEST(HistoryView, ShowsYearsMonthsAndProductsOfTheChosenApps) {
    testing::TablesFixture fixture;
    fixture.report(ReportFrequency::yearly, "2024", {{.proceeds = "100", .title = "Pad"}});
    fixture.report(ReportFrequency::monthly, "2026-08", {{.proceeds = "7", .title = "Pad"}});
    fixture.daily("2026-11-20", {{.appleID = 2, .proceeds = "5", .title = "Note", .sku = "note"}});
    HistoryView history(fixture.parts());
    history.setInSight(true);
    fixture.reload().setAppFilter(std::set<std::int64_t>{1});
    testing::expectShown(*history.rows(), "history.txt");
    for (const char* year : {"2014", "2015"}) {
        fixture.report(ReportFrequency::yearly, year, {}, ReportStatus::unavailable);
    }
    fixture.reload();
    testing::expectShown(*history.rows(), "history-past-retention.txt");
}

std::vector<BlockRow> rowsOf(const std::string& letters) {
    BlockBuilder rows;
    for (const char letter : letters) {
        if (letter == 'h') {
            rows.beginBlock();
        }
        rows.addText(letter == 'h'   ? RowKind::Heading
                     : letter == 'p' ? RowKind::Period
                                     : RowKind::Product,
                     QString(QLatin1Char(letter)));
    }
    return rows.take();
}

TEST(BlockList, TellsItsViewsWhatComesAndGoes) {
    BlockList list;
    const QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (const char* rows : {"hppp", "hpp", "hppphqq", "hppppphq", "hq", "", "hpphq"}) {
        list.show(rowsOf(rows));
        std::string shown;
        for (std::size_t place = 0; place < list.rows().size(); ++place) {
            shown += list.at<QString>(place).toStdString();
        }
        EXPECT_EQ(shown, rows);
    }
}

TEST(BlockList, LeadsTheFocusFromRowToRow) {
    BlockList list;
    EXPECT_EQ(list.stopNear(0), -1);
    list.show(rowsOf("hphq"));
    const struct {
        int place;
        int step;
        int next;
        int stop;
    } cases[] = {{0, 1, 1, 1}, {1, 1, 3, 1}, {3, 1, 3, 3}, {3, -1, 1, 3}, {1, -1, 1, 1}, {-1, 1, 1, 1}};
    for (const auto& c : cases) {
        EXPECT_EQ(list.next(c.place, c.step), c.next);
        EXPECT_EQ(list.stopNear(c.place), c.stop);
    }
}

}  // namespace
}  // namespace vantrell
