#include "WindowDriver.h"
#include "WindowHouse.h"
#include "testing/AccountFile.h"
#include "testing/Golden.h"
#include "trial/ScreenCamera.h"
#include "trial/ScreenTour.h"
#include "trial/SpokenText.h"

#include <filesystem>
#include <functional>
#include <map>
#include <string>

#include <QCoreApplication>
#include <QEvent>
#include <QRegularExpression>
#include <QTranslator>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::Complaints;
using testing::WindowDriver;
using testing::WindowHouse;

const std::filesystem::path data = VANTRELL_TEST_DATA;

LocaleNames greek() {
    return {"el_GR", "el_GR", "el_GR", "el_GR", "el_GR"};
}

/// Puts everything that screens can show into the store.
void fill(WindowHouse& house) {
    testing::AccountFile(data / "tour.account").storeIn(house);
    house.context().syncLog().insert(
        {.key = "sales daily 2026-11-19", .outcome = "error", .message = "HTTP 500: no"});
    house.appearance().setReducesMotion(true);
}

TEST(Tour, TellsOfEveryScreenWhatIsWrittenDown) {
    Complaints complaints;
    WindowHouse house;
    fill(house);
    std::map<std::string, std::string> texts;
    const auto problem = showScreens(house.tour(), [&](QQuickWindow& window, const std::string& name) {
        texts[name] = ScreenCamera::textOf(window);
    });
    EXPECT_EQ(problem.value_or(""), "");
    EXPECT_EQ(texts.size(), testing::filesIn(data / "screens", ".txt").size());
    for (const auto& [name, text] : texts) {
        testing::expectMatchesFile(text, data / "screens" / (name + ".txt"));
    }
    EXPECT_EQ(complaints.take(), "");
}

/// A language whose texts are the English ones between marks, read from right to left. It stays the first to
/// be asked, whichever come later.
class MarkedLanguage final : public QTranslator {
  public:
    MarkedLanguage() {
        QCoreApplication::instance()->installEventFilter(this);
        QCoreApplication::installTranslator(this);
    }
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* /*context*/, const char* text, const char* /*comment*/,
                                    int /*number*/) const override {
        return qstrcmp(text, "QT_LAYOUT_DIRECTION") == 0 ? QStringLiteral("RTL")
                                                         : u'‹' + QString::fromUtf8(text) + u'›';
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool isApplication = watched == QCoreApplication::instance();
        if (isApplication && event->type() == QEvent::LanguageChange && !isMoving_) {
            isMoving_ = true;
            QCoreApplication::removeTranslator(this);
            QCoreApplication::installTranslator(this);
            isMoving_ = false;
        }
        return false;
    }

  private:
    bool isMoving_ = false;
};

/// The texts with Latin letters that are neither marked nor codes nor what the account's owner entered.
std::string unmarkedTexts(const std::string& spoken) {
    static const QRegularExpression marked(QStringLiteral("‹[^‹›]*›"));
    static const QRegularExpression known(
        QStringLiteral("\\b([A-Z0-9]{1,3}|on|off|Vantrell|issuer|key|vendor|[0-9a-f]+(-[0-9a-f]+)+)\\b"));
    std::string unmarked;
    for (const QString& line : QString::fromStdString(spoken).split(u'\n')) {
        QString words = line.section(u'\t', 1);
        while (words.contains(marked)) {
            words.remove(marked);
        }
        words.remove(known);
        if (words.contains(QRegularExpression(QStringLiteral("[A-Za-z]")))) {
            unmarked += line.toStdString() + "\n";
        }
    }
    return unmarked;
}

// Dates, amounts and names are Greek there.
TEST(Tour, FindsNoTextThatCouldNotBeTranslated) {
    Complaints complaints;
    MarkedLanguage language;
    WindowHouse house(greek());
    fill(house);
    const auto problem = showScreens(house.tour(), [](QQuickWindow& window, const std::string& name) {
        EXPECT_TRUE(QGuiApplication::isRightToLeft());
        // The log's lines are English for whoever is sent them.
        if (name != "sync-log") {
            EXPECT_EQ(unmarkedTexts(ScreenCamera::textOf(window)), "") << name;
        }
    });
    EXPECT_EQ(problem.value_or(""), "");
    EXPECT_EQ(complaints.take(), "");
}

TEST(Tour, FindsNoSuchTextInWhatOpens) {
    MarkedLanguage language;
    WindowHouse house(greek());
    fill(house);
    house.show();
    WindowDriver driver(house.window());
    const struct {
        Destination::Value screen;
        QAccessible::Role role;
        const char* name;
    } cases[] = {
        {Destination::dashboard, QAccessible::Button, "‹Application menu"},
        {Destination::dashboard, QAccessible::Button, "‹All Apps"},
        {Destination::dashboard, QAccessible::Button, "‹Show as Table"},
        {Destination::byDay, QAccessible::Button, "‹From"},
        {Destination::settings, QAccessible::Button, "‹Save"},
    };
    house.windows().root().byDay()->selectWindow(3);
    for (const auto& [screen, role, name] : cases) {
        house.windows().root().select(screen);
        driver.click(role, QString::fromUtf8(name));
        ScreenCamera::settle();
        EXPECT_EQ(unmarkedTexts(spokenText(house.window())), "") << name;
        driver.key(Qt::Key_Escape);
    }
}

}  // namespace
}  // namespace vantrell
