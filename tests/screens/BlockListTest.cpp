#include "screens/BlockList.h"

#include <QAbstractItemModelTester>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

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
