import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Vantrell

// What a chart draws, in words and numbers.
Popover {
    id: popover

    required property Chart chart

    Component.onCompleted: {
        popover.chart.fillTable()
        popover.open()
    }

    contentItem: ColumnLayout {
        spacing: 10
        PlainText {
            text: popover.chart.title
            font.pixelSize: Theme.headline
            font.weight: Font.DemiBold
        }
        ListView {
            id: list
            Layout.preferredWidth: 470
            Layout.preferredHeight: Math.min(contentHeight, 320)
            clip: true
            focus: true
            boundsBehavior: Flickable.StopAtBounds
            model: popover.chart.table
            currentIndex: 0
            highlightMoveDuration: 0
            Accessible.role: Accessible.Table
            Accessible.name: popover.chart.title
            T.ScrollBar.vertical: ScrollLine {}
            delegate: Rectangle {
                id: entry
                required property chartTableRow row
                width: list.width
                height: 26
                radius: 5
                color: ListView.isCurrentItem && list.activeFocus ? Theme.quaternary : "transparent"
                Accessible.role: Accessible.Row
                Accessible.name: entry.row.spoken
                RowLayout {
                    anchors.fill: parent
                    anchors.leftMargin: 6
                    anchors.rightMargin: 14
                    spacing: 12
                    DataText {
                        Layout.fillWidth: true
                        text: entry.row.title
                        font.pixelSize: Theme.caption
                    }
                    DataText {
                        Layout.preferredWidth: 110
                        text: entry.row.status
                        font.pixelSize: Theme.smallest
                        color: Theme.secondary
                    }
                    DataText {
                        Layout.preferredWidth: 92
                        horizontalAlignment: Text.AlignRight
                        text: entry.row.refunds
                        Accessible.name: entry.row.spokenRefunds
                        font.pixelSize: Theme.caption
                        color: Theme.bad
                    }
                    DataText {
                        Layout.preferredWidth: 104
                        horizontalAlignment: Text.AlignRight
                        text: entry.row.proceeds
                        Accessible.name: entry.row.spokenProceeds
                        font.pixelSize: Theme.caption
                        font.weight: Font.Medium
                    }
                }
            }
        }
    }
    Connections {
        target: popover.chart
        function onContentChanged() { popover.chart.fillTable() }
    }
}
