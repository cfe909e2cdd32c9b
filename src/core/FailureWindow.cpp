#include "FailureWindow.h"

#include "core/Translations.h"
#include "screens/ProgramIcon.h"
#include "screens/QmlModule.h"

#include <memory>
#include <tuple>

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>

namespace vantrell {

void showStartFailure(const std::string& message, const Locale& locale, const Appearance& appearance,
                      const EndSignals& endSignals) {
    if (QGuiApplication::platformName() == QStringLiteral("offscreen")) {
        return;
    }
    const Translations translations(locale);
    QQmlEngine engine;
    prepareQmlEngine(engine);
    QGuiApplication::setWindowIcon(ProgramIcon::asIcon());
    QQmlComponent component(&engine, startFailureQml());
    const std::unique_ptr<QObject> window(component.createWithInitialProperties(
        {{QStringLiteral("message"), QString::fromStdString(message)},
         {QStringLiteral("isDark"), appearance.isDark()},
         {QStringLiteral("isMirrored"), QGuiApplication::isRightToLeft()}}));
    if (window != nullptr) {
        std::ignore = endSignals.exec();
    }
}

}  // namespace vantrell
