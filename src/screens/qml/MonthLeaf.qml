import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Vantrell

// The leaf of a calendar, to choose a day by pointer or arrow keys.
Popover {
    id: leaf

    required property MonthGrid grid
    readonly property real cell: 34

    Connections {
        target: leaf.grid
        function onPicked() { leaf.close() }
    }

    contentItem: ColumnLayout {
        spacing: 8
        RowLayout {
            spacing: 2
            PlainText {
                Layout.fillWidth: true
                Layout.leftMargin: 8
                text: leaf.grid.title
                font.pixelSize: Theme.headline
                font.weight: Font.DemiBold
            }
            ArrowButton {
                symbol: leaf.mirrored ? "chevron.right" : "chevron.left"
                name: qsTr("Previous month")
                enabled: leaf.grid.hasPrevious
                onClicked: leaf.grid.moveByMonths(-1)
            }
            ArrowButton {
                symbol: leaf.mirrored ? "chevron.left" : "chevron.right"
                name: qsTr("Next month")
                enabled: leaf.grid.hasNext
                onClicked: leaf.grid.moveByMonths(1)
            }
        }
        Row {
            spacing: 4
            Repeater {
                model: leaf.grid.weekdays
                PlainText {
                    required property string modelData
                    width: leaf.cell - 4
                    horizontalAlignment: Text.AlignHCenter
                    spoken: false
                    text: modelData
                    elide: Text.ElideNone
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: 7
                    font.pixelSize: Theme.smallest
                    color: Theme.tertiary
                }
            }
        }
        Grid {
            id: pad
            columns: 7
            spacing: 4
            focus: true
            activeFocusOnTab: true
            Accessible.role: Accessible.Table
            Accessible.name: leaf.grid.cursorText
            Accessible.focusable: true
            Keys.onLeftPressed: leaf.grid.moveByDays(leaf.mirrored ? 1 : -1)
            Keys.onRightPressed: leaf.grid.moveByDays(leaf.mirrored ? -1 : 1)
            Keys.onUpPressed: leaf.grid.moveByDays(-7)
            Keys.onDownPressed: leaf.grid.moveByDays(7)
            Keys.onReturnPressed: leaf.grid.pickCursor()
            Keys.onEnterPressed: leaf.grid.pickCursor()
            Keys.onSpacePressed: leaf.grid.pickCursor()
            Keys.onPressed: event => {
                event.accepted = true
                switch (event.key) {
                case Qt.Key_PageUp: leaf.grid.moveByMonths(-1); break
                case Qt.Key_PageDown: leaf.grid.moveByMonths(1); break
                default: event.accepted = false
                }
            }
            Repeater {
                model: leaf.grid.days
                DayCell {
                    width: leaf.cell - 4
                    height: leaf.cell - 4
                    showsCursor: pad.activeFocus
                    onPicked: leaf.grid.pick(index)
                }
            }
        }
    }

    component ArrowButton: T.AbstractButton {
        id: arrow
        required property string symbol
        required property string name
        implicitWidth: 30
        implicitHeight: 30
        opacity: arrow.enabled ? 1 : 0.3
        focusPolicy: Qt.StrongFocus
        Accessible.role: Accessible.Button
        Accessible.name: arrow.name
        Accessible.onPressAction: arrow.clicked()
        Keys.onReturnPressed: arrow.clicked()
        SymbolItem {
            anchors.centerIn: parent
            name: arrow.symbol
            color: Theme.secondary
        }
        background: Rectangle {
            radius: 6
            color: arrow.hovered ? Theme.quaternary : "transparent"
            border.width: arrow.visualFocus ? 2 : 0
            border.color: Theme.accent
        }
    }
}
