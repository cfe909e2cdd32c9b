import QtQuick
import Vantrell

// What the marks of a chart mean.
Row {
    id: legend


    spacing: 14

    component Entry: Row {
        id: entry
        required property color ink
        required property string text
        property real swatchWidth: 7
        property real swatchHeight: 7
        spacing: 4
        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: entry.swatchWidth
            height: entry.swatchHeight
            radius: 1
            color: entry.ink
        }
        PlainText {
            text: entry.text
            font.pixelSize: Theme.smallest
            color: Theme.secondary
        }
    }

    Entry {
        ink: Theme.chartProceeds
        text: qsTr("Proceeds")
    }
    Entry {
        ink: Theme.chartRefunds
        text: qsTr("Refunds")
    }
    Entry {
        ink: Theme.chartMissing
        swatchWidth: 10
        swatchHeight: 2
        text: qsTr("Not fetched")
    }
}
