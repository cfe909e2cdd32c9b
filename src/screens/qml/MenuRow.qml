import QtQuick
import QtQuick.Templates as T
import Vantrell

// A line of a menu that does something.
T.MenuItem {
    id: row

    implicitHeight: 30
    focusPolicy: Qt.StrongFocus
    opacity: enabled ? 1 : 0.45
    Accessible.name: row.text
    Accessible.onPressAction: row.clicked()
    Keys.onReturnPressed: row.clicked()
    Keys.onEnterPressed: row.clicked()

    contentItem: DataText {
        leftPadding: 10
        rightPadding: 10
        verticalAlignment: Text.AlignVCenter
        spoken: false
        text: row.text
        font.pixelSize: Theme.callout
    }
    background: Rectangle {
        radius: 6
        color: row.enabled && (row.hovered || row.activeFocus) ? Theme.quaternary : "transparent"
        border.width: row.visualFocus ? 2 : 0
        border.color: Theme.accent
    }
}
