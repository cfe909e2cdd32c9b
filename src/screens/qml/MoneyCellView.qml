import QtQuick
import Vantrell

// A figure of a table at the end of its column.
Item {
    id: cell

    required property TableShape table
    required property int column
    required property moneyValue money
    property bool isEmpty: false
    property bool tabStop: false
    property real inkOpacity: 1

    width: table.columnWidth
    implicitHeight: content.implicitHeight
    anchors.verticalCenter: parent !== null ? parent.verticalCenter : undefined

    Loader {
        id: content
        anchors.right: parent.right
        sourceComponent: cell.isEmpty ? none : figure
    }
    Component {
        id: none
        PlainText {
            text: cell.money.text
            font.pixelSize: Theme.callout
            color: Theme.tertiary
            opacity: cell.inkOpacity
            Accessible.name: cell.money.spoken
        }
    }
    Component {
        id: figure
        MoneyText {
            width: Math.min(implicitWidth, cell.width)
            money: cell.money
            inkOpacity: cell.inkOpacity
            font.pixelSize: Theme.callout
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 8
            focusPolicy: cell.tabStop ? Qt.TabFocus : Qt.NoFocus
            onActiveFocusChanged: if (activeFocus) cell.table.reveal(cell.column)
        }
    }
}
