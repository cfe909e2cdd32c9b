import QtQuick
import QtQuick.Layouts
import Vantrell

// One line of a day's report.
RowFrame {
    id: line

    required property lineItemRow row

    copyText: line.row.copyText
    contentItem: RowLayout {
        spacing: 16
        opacity: line.row.isMuted ? 0.55 : 1
        ColumnLayout {
            Layout.alignment: Qt.AlignTop
            spacing: 2
            DataText {
                Layout.fillWidth: true
                text: line.row.title
                font.weight: line.row.isMuted ? Font.Normal : Font.Medium
            }
            CaptionText { text: line.row.caption }
        }
        ColumnLayout {
            Layout.alignment: Qt.AlignTop
            Layout.fillWidth: false
            Layout.maximumWidth: line.width * 0.5
            spacing: 2
            CaptionText {
                horizontalAlignment: Text.AlignRight
                text: line.row.price
            }
            DataText {
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignRight
                text: line.row.amount
                Accessible.name: line.row.spokenAmount
                font.pixelSize: Theme.callout
                font.weight: line.row.isMuted ? Font.Normal : Font.Medium
                color: line.row.isRefund ? Theme.bad : Theme.primary
            }
        }
    }
    Divider {
        width: parent.width
        anchors.bottom: parent.bottom
    }
}
