import QtQuick
import QtQuick.Templates as T
import Vantrell

// What can be done with a typed text and what is chosen of it.
Popover {
    id: pane

    required property T.TextField field
    readonly property bool hasChosen: field.selectedText !== ""

    padding: 6
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

    contentItem: Column {
        Entry {
            id: cut
            focus: pane.hasChosen
            enabled: pane.hasChosen
            text: qsTr("Cut")
            KeyNavigation.down: copy
            onClicked: pane.field.cut()
        }
        Entry {
            id: copy
            enabled: pane.hasChosen
            text: qsTr("Copy")
            KeyNavigation.up: cut
            KeyNavigation.down: paste
            onClicked: pane.field.copy()
        }
        Entry {
            id: paste
            enabled: pane.field.canPaste
            text: qsTr("Paste")
            KeyNavigation.up: copy
            KeyNavigation.down: all
            onClicked: pane.field.paste()
        }
        MenuDivider { width: all.width }
        Entry {
            id: all
            focus: !pane.hasChosen
            enabled: pane.field.length > 0
            text: qsTr("Select All")
            KeyNavigation.up: paste
            onClicked: pane.field.selectAll()
        }
    }

    component Entry: MenuRow {
        width: 180
        // After what it does, since closing gives the focus back to the field.
        Component.onCompleted: clicked.connect(pane.close)
    }
}
