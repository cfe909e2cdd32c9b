import QtQuick
import QtQuick.Layouts
import Vantrell

// A row that ends in a figure: its title, what is said beneath it, and the money on the title's line.
RowFrame {
    id: figureRow

    required property string title
    required property moneyValue money
    default property alias lines: column.data
    property alias beside: besides.data

    contentItem: Item {
        implicitWidth: 240
        implicitHeight: column.implicitHeight
        ColumnLayout {
            id: column
            anchors.left: parent.left
            anchors.right: figure.left
            anchors.rightMargin: 16
            spacing: 2
            RowLayout {
                id: besides
                spacing: 6
                DataText {
                    id: heading
                    Layout.fillWidth: true
                    Layout.maximumWidth: Math.ceil(implicitWidth)
                    Layout.alignment: Qt.AlignVCenter
                    text: figureRow.title
                    font.weight: Font.Medium
                }
            }
        }
        MoneyText {
            id: figure
            anchors.right: parent.right
            y: besides.y + heading.y
            width: Math.min(implicitWidth, parent.width * 0.6)
            money: figureRow.money
            font.pixelSize: Theme.body
            font.weight: Font.Medium
            focusPolicy: figureRow.tabStop ? Qt.TabFocus : Qt.NoFocus
        }
    }
}
