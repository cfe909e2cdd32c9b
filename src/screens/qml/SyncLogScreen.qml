import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Vantrell

// The newest lines of the sync log.
ColumnLayout {
    id: screen

    required property SyncLogView model
    signal back()

    spacing: 0

    Shortcut {
        sequences: ["Alt+Left", "Escape", StandardKey.Back]
        enabled: screen.visible
        onActivated: screen.back()
    }
    RowLayout {
        Layout.leftMargin: 14
        Layout.rightMargin: 20
        Layout.topMargin: 8
        Layout.bottomMargin: 4
        spacing: 8
        PushButton {
            borderless: true
            symbol: mirrored ? "chevron.right" : "chevron.left"
            text: screen.model.backText
            onClicked: screen.back()
        }
        PlainText {
            text: screen.model.title
            font.pixelSize: Theme.headline
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
    }
    ListView {
        id: list
        Layout.fillWidth: true
        Layout.fillHeight: true
        leftMargin: 20
        rightMargin: 20
        bottomMargin: 20
        clip: true
        focus: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        model: screen.model.rows
        T.ScrollBar.vertical: ScrollLine {}
        Accessible.role: Accessible.List
        Accessible.name: screen.model.title
        delegate: SyncLogLine { width: list.width - 40 }
    }
}
