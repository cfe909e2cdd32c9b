import QtQuick
import QtQuick.Templates as T
import Vantrell

// What can be done with a row: copy it.
Popover {
    id: menu

    signal copied()

    padding: 6
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    contentItem: MenuRow {
        implicitWidth: 180
        focus: true
        text: qsTr("Copy")
        onClicked: {
            menu.copied()
            menu.close()
        }
    }
}
