#pragma once

#include "ScreenFixture.h"
#include "screens/RootView.h"
#include "testing/AccountFile.h"

#include <QQmlContext>
#include <QQmlEngine>

namespace vantrell::testing {

/// The screens' models over an account, asked and told as QML does it. What isn't theirs to do is done by
/// `test`, which is this.
class TranscriptHouse : public QObject {
    Q_OBJECT

  public:
    explicit TranscriptHouse(const AccountFile& account);

    /// What the expression is worth, line by line, each after four blanks.
    [[nodiscard]] std::string answer(const QString& expression);

    Q_INVOKABLE void reload() { fixture_.reload(); }
    Q_INVOKABLE void passHours(int hours) { fixture_.clock.advance(std::chrono::hours(hours)); }
    /// The pauses of a run that stays under way.
    Q_INVOKABLE void passReports(int count) {
        fixture_.clock.advance(std::chrono::milliseconds(150) * count);
    }
    /// One that stays under way.
    Q_INVOKABLE void beginRun();
    Q_INVOKABLE void openApp(int appID) { root_.openApp(appID); }
    Q_INVOKABLE void leaveUnsaved(bool isDiskFull);
    Q_INVOKABLE void damageReport(const QString& frequency, const QString& date);
    Q_INVOKABLE void answerTo(const QString& request, int status, const QString& body);
    Q_INVOKABLE void lockKeyring(bool isLocked) {
        fixture_.secrets.setUnreadable(isLocked ? std::optional<std::string>("It is locked.") : std::nullopt);
    }
    /// What was asked since the last call.
    Q_INVOKABLE QString requests();
    Q_INVOKABLE QVariant row(const QAbstractItemModel* list, int place);
    /// Each column's bars from zero on.
    Q_INVOKABLE QStringList bars(const vantrell::Chart* chart);

  private:
    ScreenFixture fixture_;
    RootView root_{fixture_.parts()};
    QQmlEngine engine_;
    QQmlContext context_{&engine_};
};

}  // namespace vantrell::testing
