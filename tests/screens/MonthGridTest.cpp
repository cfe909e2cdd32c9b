#include "screens/components/DateField.h"

#include <gmock/gmock.h>

namespace vantrell {
namespace {

using namespace std::chrono_literals;

class MonthGridTest : public ::testing::Test {
  protected:
    MonthGridTest() {
        QObject::connect(&field, &DateField::picked, [this](CivilDate day) { picked = day; });
        field.show(2026y / 11 / 20, {2026y / 10 / 5, 2026y / 11 / 22}, 2026y / 11 / 22);
        field.openGrid();
    }
    MonthDay day(std::size_t place) { return grid.days()->at<MonthDay>(place); }
    std::string cursor() const { return grid.cursorText().toStdString(); }

    Locale german{LocaleNames{"de_DE", "de_DE", "de_DE", "de_DE", "de_DE"}};
    DateField field{german, QStringLiteral("Bis")};
    MonthGrid& grid = *field.grid();
    std::optional<CivilDate> picked;
};

TEST_F(MonthGridTest, BeginsItsWeeksAsTheLocaleDoes) {
    EXPECT_EQ(field.spoken().toStdString(), "Bis, Freitag, 20. Nov. 2026");
    EXPECT_EQ(grid.title(), QStringLiteral("November 2026"));
    EXPECT_EQ(grid.weekdays().join(QLatin1Char(' ')), QStringLiteral("Mo. Di. Mi. Do. Fr. Sa. So."));
    ASSERT_EQ(grid.days()->count(), 42);
    EXPECT_EQ(day(0).spoken, QStringLiteral("Montag, 26. Okt. 2026"));
    EXPECT_FALSE(day(0).isInMonth);
    EXPECT_TRUE(day(25).isChosen);
    EXPECT_TRUE(day(25).hasCursor);
    EXPECT_TRUE(day(27).isToday);
    EXPECT_TRUE(day(27).isEnabled);
    EXPECT_FALSE(day(28).isEnabled);
}

TEST_F(MonthGridTest, TheCursorStaysWithinTheLimits) {
    grid.moveByDays(7);
    EXPECT_EQ(cursor(), "Sonntag, 22. Nov. 2026");
    EXPECT_FALSE(grid.hasNext());
    grid.moveByMonths(-1);
    EXPECT_EQ(cursor(), "Donnerstag, 22. Okt. 2026");
    EXPECT_FALSE(grid.hasPrevious());
    EXPECT_TRUE(grid.hasNext());
    grid.moveByMonths(-1);
    EXPECT_EQ(cursor(), "Montag, 5. Okt. 2026");
    grid.pickCursor();
    EXPECT_EQ(picked, 2026y / 10 / 5);
}

TEST_F(MonthGridTest, OnlyADayWithinTheLimitsIsPicked) {
    for (const int place : {-1, 28, 42}) {
        grid.pick(place);
        EXPECT_EQ(picked, std::nullopt) << place;
    }
    grid.pick(27);
    EXPECT_EQ(picked, 2026y / 11 / 22);
}

TEST_F(MonthGridTest, WithoutAnEarliestDayTheCalendarEndsAtItsFirst) {
    field.show(1y / 1 / 3, {std::nullopt, 2026y / 11 / 22}, 2026y / 11 / 22);
    field.openGrid();
    EXPECT_TRUE(grid.hasPrevious());
    grid.moveByMonths(-1);
    grid.moveByDays(-7);
    grid.pickCursor();
    EXPECT_EQ(picked, 1y / 1 / 3);
}

}  // namespace
}  // namespace vantrell
