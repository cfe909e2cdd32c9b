import QtQuick
import Vantrell

ScreenScroll {
    id: screen

    required property DashboardView model
    required property SyncButton syncButton

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
            text: qsTr("Fetch Reports")
            enabled: screen.syncButton.isEnabled
            onClicked: screen.syncButton.press()
        }
    }
    TileGrid {
        visible: !screen.model.isEmpty
        width: parent.width
        tiles: screen.model.tiles
    }
    Row {
        visible: !screen.model.isEmpty && screen.model.lacking !== ""
        spacing: 6
        PlainText {
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("%1 ·").arg(screen.model.lacking)
            font.pixelSize: Theme.callout
            color: Theme.secondary
        }
        TextLink {
            text: qsTr("Sync Log")
            onClicked: screen.model.openLog()
        }
    }
    Card {
        visible: !screen.model.isEmpty
        width: parent.width
        height: block.height + 32
        Column {
            id: block
            x: 16
            y: 16
            width: parent.width - 32
            spacing: 10
            DataText {
                width: parent.width
                text: screen.model.chart.title
                font.pixelSize: Theme.headline
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }
            ChartBlock {
                width: parent.width
                chartHeight: 240
                chart: screen.model.chart
                viewport: screen
            }
        }
    }
    DaySheetPopup { sheet: screen.model.selectedDay }
}
