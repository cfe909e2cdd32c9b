import QtQuick
import QtQuick.Layouts
import Vantrell

Rectangle {
    id: box

    required property string message

    visible: message !== ""
    implicitHeight: row.implicitHeight + 32
    radius: Theme.cardRadius
    color: Qt.rgba(Theme.warning.r, Theme.warning.g, Theme.warning.b, 0.10)
    border.color: Qt.rgba(Theme.warning.r, Theme.warning.g, Theme.warning.b, 0.35)

    RowLayout {
        id: row
        anchors.fill: parent
        anchors.margins: 16
        spacing: 10
        SymbolItem {
            Layout.alignment: Qt.AlignTop
            name: "exclamationmark.triangle.fill"
            color: Theme.warning
        }
        PlainText {
            Layout.fillWidth: true
            wrapMode: Text.Wrap
            text: box.message
            font.pixelSize: Theme.callout
            color: Theme.warning
        }
    }
}
