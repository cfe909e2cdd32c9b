import QtQuick
import Vantrell

// One screen of the sidebar. It stays once it is built, with its scroll position. Those that were not selected yet
// are built bit by bit as soon as the figures are in, so that selecting one takes no time.
Loader {
    id: host

    required property RootView root
    required property Screen model
    readonly property bool current: root.shownScreen === model
    property bool wasCurrent: false

    anchors.fill: parent
    asynchronous: !host.current
    active: host.wasCurrent || host.root.hasFigures
    visible: host.current
    onLoaded: host.model.prepare()
    onCurrentChanged: host.show()
    Component.onCompleted: host.show()

    function show() {
        host.model.inSight = host.current
        host.wasCurrent = host.wasCurrent || host.current
    }
}
