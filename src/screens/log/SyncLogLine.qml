import QtQuick
import QtQuick.Layouts
import Vantrell

// What was asked, how it went, and when.
RowFrame {
    id: line

    required property syncLogRow row
    required property int index
    readonly property bool last: ListView.view !== null && index === ListView.view.count - 1

    copyText: line.row.copyText
    leftPadding: 16
    rightPadding: 16
    overhang: -6
    Accessible.name: line.row.key

    contentItem: ColumnLayout {
        spacing: 2
        RowLayout {
            spacing: 10
            DataText {
                Layout.maximumWidth: Math.ceil(implicitWidth)
                Layout.fillWidth: true
                text: line.row.key
                font.family: "monospace"
                font.pixelSize: Theme.caption
            }
            PlainText {
                text: line.row.outcome
                font.pixelSize: Theme.caption
                font.weight: Font.Medium
                color: Theme.tone(line.row.tone)
            }
        }
        PlainText {
            Layout.fillWidth: true
            visible: text !== ""
            wrapMode: Text.Wrap
            text: line.row.message
            font.pixelSize: Theme.smallest
            color: Theme.secondary
        }
        PlainText {
            text: line.row.date
            font.pixelSize: Theme.smallest
            color: Theme.tertiary
        }
    }
    CardSlice {
        z: -2
        anchors.fill: parent
        first: line.index === 0
        last: line.last
    }
    Divider {
        visible: !line.last
        anchors.bottom: parent.bottom
        x: 16
        width: parent.width - 32
    }
}
