import QtQuick
import QtQuick.Templates as T
import Vantrell

// What can be done with a row: copy it.
Popover {
    id: menu

    required property string copyTitle
    signal copied()

    padding: 6
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    contentItem: T.MenuItem {
        id: item
        implicitWidth: label.implicitWidth + 44
        implicitHeight: 30
        focus: true
        text: menu.copyTitle
        Accessible.role: Accessible.MenuItem
        Accessible.name: item.text
        Accessible.onPressAction: item.clicked()
        Keys.onReturnPressed: item.clicked()
        Keys.onEnterPressed: item.clicked()
        onClicked: {
            menu.copied()
            menu.close()
        }
        SymbolItem {
            id: symbol
            anchors.left: parent.left
            anchors.leftMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            width: 14
            height: 14
            name: "doc.on.doc"
            color: Theme.secondary
        }
        PlainText {
            id: label
            anchors.left: symbol.right
            anchors.leftMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            spoken: false
            text: item.text
            font.pixelSize: Theme.callout
        }
        background: Rectangle {
            radius: 6
            color: item.hovered || item.activeFocus ? Theme.quaternary : "transparent"
        }
    }
}
