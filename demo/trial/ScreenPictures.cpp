#include "trial/ScreenPictures.h"

#include "core/AppWindows.h"
#include "platform/Appearance.h"

#include <QCoreApplication>
#include <QImage>

namespace vantrell {

std::optional<std::string> writeScreens(MyApp& app, TrialSurroundings& surroundings,
                                        const std::filesystem::path& folder) {
    std::filesystem::create_directories(folder);
    FixedAppearance appearance;
    AppWindows windows(app, surroundings.parts(), {surroundings.origins(), appearance});
    windows.mainWindow().show();
    QCoreApplication::processEvents();
    const QImage picture = windows.mainWindow().grabWindow();
    if (!picture.save(QString::fromStdString(folder / "dashboard-light.png"))) {
        return "could not write";
    }
    return std::nullopt;
}

}  // namespace vantrell
