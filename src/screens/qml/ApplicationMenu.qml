import QtQuick
import Vantrell

// The button at the top of the sidebar with what concerns the program as a whole.
PushButton {
    id: button

    required property AboutAndUpdateCommands commands

    borderless: true
    help: qsTr("Application menu")
    isQuiet: pane.visible
    Accessible.role: Accessible.ButtonMenu
    Accessible.name: button.help
    onClicked: pane.visible ? pane.close() : pane.open()

    contentItem: Item {
        implicitWidth: 18
        implicitHeight: 18
        SymbolItem {
            anchors.centerIn: parent
            width: 18
            height: 18
            name: "line.3.horizontal"
            color: Theme.secondary
        }
    }

    Popover {
        id: pane
        x: 0
        y: button.height + 4
        padding: 6
        contentItem: Column {
            MenuRow {
                id: about
                width: 220
                focus: true
                KeyNavigation.down: updates
                text: qsTr("About Vantrell")
                onClicked: {
                    pane.close()
                    button.commands.openAbout()
                }
            }
            MenuDivider { width: 220 }
            MenuRow {
                id: updates
                width: 220
                KeyNavigation.up: about
                text: qsTr("Check for Updates…")
                enabled: button.commands.canCheckForUpdates
            }
        }
    }
}
