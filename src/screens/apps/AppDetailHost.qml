import QtQuick
import Vantrell

// The app that lies open over the selected screen.
Loader {
    id: host

    required property RootView root
    property AppDetailView detail: null
    signal closed()

    active: false
    sourceComponent: AppDetailScreen { detail: host.detail }

    // In this order, since a screen must not outlive what it shows.
    Connections {
        target: host.root
        function onAppDetailChanged() {
            host.active = false
            host.detail = host.root.appDetail
            host.active = host.detail !== null
            host.active ? host.forceActiveFocus() : host.closed()
        }
    }
}
