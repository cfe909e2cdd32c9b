import QtQuick
import QtQuick.Layouts
import Vantrell

// The screen's title and the controls that the screens share.
Rectangle {
    id: toolbar

    required property RootView root

    implicitHeight: 52
    color: Theme.window

    RowLayout {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width - 40, Theme.widestContent)
        height: parent.height
        spacing: 8
        PushButton {
            visible: toolbar.root.canGoBack
            text: qsTr("Back")
            symbol: toolbar.LayoutMirroring.enabled ? "chevron.right" : "chevron.left"
            onClicked: toolbar.root.goBack()
        }
        DataText {
            Layout.fillWidth: true
            text: toolbar.root.screenTitle
            font.pixelSize: Theme.title3
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        FilterMenu {
            visible: toolbar.root.hasToolbarControls
            Layout.maximumWidth: 240
            picker: toolbar.root.filter
        }
        PushButton {
            visible: toolbar.root.hasToolbarControls
            text: qsTr("Sync Now")
            symbol: "arrow.clockwise"
            spinning: toolbar.root.syncButton.isSpinning
            enabled: toolbar.root.syncButton.isEnabled
            help: qsTr("Fetch new reports from Apple")
            onClicked: toolbar.root.syncButton.press()
        }
    }
}
