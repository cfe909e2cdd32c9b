import QtQuick
import QtQuick.Templates as T
import Vantrell

// A line of a menu that is on or off. The model decides what it is after it was pressed.
T.CheckDelegate {
    id: row

    property bool isOn: false
    signal toggledTo(bool isOn)

    implicitHeight: 30
    checked: row.isOn
    nextCheckState: () => row.isOn ? Qt.Checked : Qt.Unchecked
    focusPolicy: Qt.StrongFocus
    Accessible.name: row.text
    Accessible.onToggleAction: row.toggledTo(!row.isOn)
    Accessible.onPressAction: row.toggledTo(!row.isOn)
    onClicked: row.toggledTo(!row.isOn)
    Keys.onReturnPressed: row.toggledTo(!row.isOn)

    contentItem: Item {
        SymbolItem {
            id: mark
            anchors.left: parent.left
            anchors.leftMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            visible: row.isOn
            name: "checkmark"
            color: Theme.accent
        }
        DataText {
            anchors.left: mark.right
            anchors.leftMargin: 8
            anchors.right: parent.right
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            spoken: false
            text: row.text
            font.pixelSize: Theme.callout
        }
    }
    background: Rectangle {
        radius: 6
        color: row.hovered || row.activeFocus ? Theme.quaternary : "transparent"
        border.width: row.visualFocus ? 2 : 0
        border.color: Theme.accent
    }
}
