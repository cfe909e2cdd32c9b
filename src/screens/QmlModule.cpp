#include "screens/QmlModule.h"

// Written by the build from the types of this layer.
extern void qml_register_types_Vantrell();

namespace vantrell {

// The layer is a static library: nothing else keeps the linker from leaving the registration out.
void prepareQmlEngine(QQmlEngine& engine) {
    qml_register_types_Vantrell();
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
}

QUrl mainQml() {
    return QUrl(QStringLiteral("qrc:/qt/qml/Vantrell/Main.qml"));
}

}  // namespace vantrell
