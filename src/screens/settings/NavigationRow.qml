import QtQuick
import QtQuick.Templates as T
import Vantrell

// A row of a form that leads further in.
T.AbstractButton {
    id: row

    implicitHeight: 34
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.Button
    Accessible.name: row.text
    Accessible.onPressAction: row.clicked()
    Keys.onReturnPressed: row.clicked()
    Keys.onEnterPressed: row.clicked()

    contentItem: Item {
        DataText {
            anchors.left: parent.left
            anchors.right: mark.left
            anchors.verticalCenter: parent.verticalCenter
            spoken: false
            text: row.text
        }
        SymbolItem {
            id: mark
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: 14
            height: 14
            name: row.mirrored ? "chevron.left" : "chevron.right"
            color: Theme.tertiary
        }
    }
    background: Rectangle {
        anchors.fill: parent
        anchors.leftMargin: -8
        anchors.rightMargin: -8
        radius: Theme.controlRadius
        color: row.hovered || row.down ? Theme.quaternary : "transparent"
        border.width: row.visualFocus ? 2 : 0
        border.color: Theme.accent
    }
}
