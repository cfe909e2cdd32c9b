#include "screens/QmlModule.h"

#include <QFont>

// Written by the build from the types of this layer.
extern void qml_register_types_Vantrell();

namespace vantrell {

// The layer is a static library: nothing else keeps the linker from leaving the registration out.
void prepareQmlEngine(QQmlEngine& engine) {
    qml_register_types_Vantrell();
    // Named here, the font for pictures in titles needn't be searched among all others, which would take
    // longer than a frame, anew for each size of text.
    QFont::insertSubstitution(QStringLiteral("Roboto"), QStringLiteral("Noto Color Emoji"));
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
}

QUrl mainQml() {
    return QUrl(QStringLiteral("qrc:/qt/qml/Vantrell/Main.qml"));
}

QUrl startFailureQml() {
    return QUrl(QStringLiteral("qrc:/qt/qml/Vantrell/StartFailureWindow.qml"));
}

}  // namespace vantrell
