import QtQuick
import Vantrell

ScreenScroll {
    id: screen

    required property DashboardView model

    SyncBannerRow {
        width: parent.width
        banner: screen.model.banner
    }
    ErrorBox {
        width: parent.width
        message: screen.model.error
    }
    Column {
        visible: screen.model.isEmpty
        width: parent.width
        topPadding: 60
        spacing: 20
        EmptyStateView {
            width: parent.width
            content: screen.model.emptyState
        }
        PushButton {
            anchors.horizontalCenter: parent.horizontalCenter
            prominent: true
            text: screen.model.fetchText
            enabled: screen.model.canFetch
            onClicked: screen.model.fetch()
        }
    }
    TileGrid {
        visible: !screen.model.isEmpty
        width: parent.width
        tiles: screen.model.tiles
    }
}
