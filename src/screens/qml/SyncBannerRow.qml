import QtQuick
import QtQuick.Layouts
import Vantrell

RowLayout {
    id: row

    required property SyncBanner banner

    visible: banner.isShown
    spacing: 12

    ProgressLine {
        Layout.preferredWidth: 220
        indeterminate: row.banner.isIndeterminate
        value: row.banner.fraction
        Accessible.name: qsTr("Sync progress")
    }
    DataText {
        Layout.fillWidth: true
        text: row.banner.text
        font.pixelSize: Theme.caption
        color: Theme.secondary
    }
    PushButton {
        borderless: true
        text: qsTr("Stop")
        textSize: Theme.caption
        onClicked: row.banner.stop()
    }
}
