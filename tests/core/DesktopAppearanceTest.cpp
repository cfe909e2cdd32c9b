#include "core/DesktopAppearance.h"

#include <optional>
#include <stdexcept>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using namespace std::chrono_literals;

/// A settings portal on a connection of its own, which answers with the values it is given, or not at all.
class FakePortal final : public QDBusVirtualObject {
  public:
    FakePortal(std::optional<QVariant> scheme, std::optional<QVariant> animations)
        : scheme_(std::move(scheme)),
          animations_(std::move(animations)),
          bus_(QDBusConnection::connectToBus(QDBusConnection::SessionBus, name)) {
        if (!bus_.registerVirtualObject(path, this) ||
            !bus_.registerService(QStringLiteral("org.freedesktop.portal.Desktop"))) {
            throw std::runtime_error("run this on a session bus of its own, as ctest does");
        }
    }
    ~FakePortal() override {
        bus_.unregisterService(QStringLiteral("org.freedesktop.portal.Desktop"));
        QDBusConnection::disconnectFromBus(name);
    }
    FakePortal(const FakePortal&) = delete;
    FakePortal& operator=(const FakePortal&) = delete;

    void change(const QString& space, const QString& key, const QVariant& value) {
        auto signal = QDBusMessage::createSignal(path, QStringLiteral("org.freedesktop.portal.Settings"),
                                                 QStringLiteral("SettingChanged"));
        signal.setArguments({space, key, QVariant::fromValue(QDBusVariant(value))});
        bus_.send(signal);
    }
    [[nodiscard]] int asked() const { return asked_; }

    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        ++asked_;
        const bool isScheme = message.arguments() == QVariantList{group, QStringLiteral("color-scheme")};
        if (const auto& value = isScheme ? scheme_ : animations_) {
            const auto wrapped = QVariant::fromValue(QDBusVariant(*value));
            connection.send(message.createReply(QVariant::fromValue(QDBusVariant(wrapped))));
        } else {
            message.setDelayedReply(true);
        }
        return true;
    }

    const QString group = QStringLiteral("org.freedesktop.appearance");

  private:
    const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
    static inline const QString name = QStringLiteral("portal");
    std::optional<QVariant> scheme_;
    std::optional<QVariant> animations_;
    QDBusConnection bus_;
    int asked_ = 0;
};

TEST(DesktopAppearance, IsWhatThePortalSaysAtFirst) {
    const struct {
        QVariant scheme;
        QVariant animations;
        bool isDark;
        bool reducesMotion;
    } cases[] = {
        {1U, true, true, false},
        {2U, false, false, true},
        {0U, false, false, true},
        {QStringLiteral("1"), false, false, true},
    };
    for (const auto& row : cases) {
        FakePortal portal(row.scheme, row.animations);
        const DesktopAppearance appearance;
        const auto isAsTold = [&] {
            return appearance.isDark() == row.isDark && appearance.reducesMotion() == row.reducesMotion;
        };
        EXPECT_TRUE(QTest::qWaitFor([&] { return portal.asked() == 2 && isAsTold(); }, 10'000));
    }
}

TEST(DesktopAppearance, FollowsTheDesktopEvenIfItsFirstAnswerNeverComes) {
    FakePortal portal(std::nullopt, std::nullopt);
    DesktopAppearance appearance(1ms);
    QSignalSpy changes(&appearance, &Appearance::isDarkChanged);
    ASSERT_TRUE(QTest::qWaitFor([&] { return portal.asked() == 2; }, 10'000));
    EXPECT_FALSE(appearance.isDark());

    portal.change(QStringLiteral("org.example"), QStringLiteral("color-scheme"), 1U);
    portal.change(portal.group, QStringLiteral("color-scheme"), 1U);
    portal.change(portal.group, QStringLiteral("color-scheme"), 1U);
    portal.change(portal.group, QStringLiteral("color-scheme"), 2U);
    portal.change(QStringLiteral("org.gnome.desktop.interface"), QStringLiteral("enable-animations"), false);
    ASSERT_TRUE(QTest::qWaitFor([&] { return appearance.reducesMotion(); }, 10'000));
    EXPECT_EQ(changes.count(), 2);
    EXPECT_FALSE(appearance.isDark());
}

}  // namespace
}  // namespace vantrell
