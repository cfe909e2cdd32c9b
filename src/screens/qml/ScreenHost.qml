import QtQuick
import Vantrell

// One screen of the sidebar. It is built when first selected and stays, with its scroll position.
Loader {
    id: host

    required property RootView root
    required property Screen model
    readonly property bool current: root.shownScreen === model

    anchors.fill: parent
    active: false
    visible: current
    onCurrentChanged: show()
    Component.onCompleted: show()

    function show() {
        host.model.inSight = host.current
        if (host.current) {
            host.active = true
        }
    }
}
