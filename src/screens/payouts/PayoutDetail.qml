import QtQuick
import QtQuick.Layouts
import Vantrell

// The currencies of a payout, in columns.
ColumnLayout {
    id: detail

    required property var currencies
    property bool canRefetch: true
    property real codeWidth: 40
    property real convertedWidth: 80
    signal refetch()

    spacing: 6

    Repeater {
        model: detail.currencies
        RowLayout {
            id: line
            required property breakdownRow modelData
            Layout.alignment: Qt.AlignRight
            Layout.fillWidth: false
            Layout.preferredWidth: Math.min(detail.width, 460)
            spacing: 16
            DataText {
                Layout.preferredWidth: detail.codeWidth
                text: line.modelData.code
                font.pixelSize: Theme.caption
                font.family: "monospace"
                color: Theme.secondary
                onImplicitWidthChanged: detail.codeWidth = Math.min(160, Math.max(detail.codeWidth, implicitWidth))
            }
            DataText {
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignRight
                text: line.modelData.amount
                font.pixelSize: Theme.callout
                Accessible.name: line.modelData.spokenAmount
            }
            DataText {
                Layout.preferredWidth: detail.convertedWidth
                horizontalAlignment: Text.AlignRight
                text: line.modelData.converted
                Accessible.name: line.modelData.spokenConverted
                font.pixelSize: Theme.caption
                color: Theme.secondary
                onImplicitWidthChanged: detail.convertedWidth = Math.min(200, Math.max(detail.convertedWidth, implicitWidth))
            }
        }
    }
    PushButton {
        Layout.topMargin: 4
        text: qsTr("Re-fetch This Period")
        textSize: Theme.caption
        enabled: detail.canRefetch
        onClicked: detail.refetch()
    }
}
