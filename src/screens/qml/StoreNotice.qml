import QtQuick
import QtQuick.Layouts
import Vantrell

// What the store can't keep or give, above whatever is shown; nothing while it is well.
Rectangle {
    id: notice

    required property RootView root
    readonly property color ink: Theme.tone(root.storeTone)

    visible: root.storeNotice !== ""
    implicitHeight: visible ? line.implicitHeight + 20 : 0
    color: Qt.rgba(ink.r, ink.g, ink.b, 0.10)

    RowLayout {
        id: line
        anchors.centerIn: parent
        width: Math.min(parent.width - 40, Theme.widestContent)
        spacing: 10
        SymbolItem {
            Layout.alignment: Qt.AlignTop
            name: "exclamationmark.triangle.fill"
            color: notice.ink
        }
        PlainText {
            Layout.fillWidth: true
            wrapMode: Text.Wrap
            text: notice.root.storeNotice
            font.pixelSize: Theme.callout
            color: notice.ink
            Accessible.role: Accessible.AlertMessage
        }
    }
}
