import QtQuick
import QtQuick.Templates as T
import Vantrell

// The button at the top of the sidebar with what concerns the program as a whole.
PushButton {
    id: button

    required property AboutAndUpdateCommands commands

    borderless: true
    help: commands.title
    Accessible.role: Accessible.ButtonMenu
    Accessible.name: commands.title
    onClicked: menu.visible ? menu.close() : menu.open()

    contentItem: Item {
        implicitWidth: 18
        implicitHeight: 18
        SymbolItem {
            anchors.centerIn: parent
            width: 18
            height: 18
            name: button.commands.symbol
            color: Theme.secondary
        }
    }

    Popover {
        id: menu
        x: 0
        y: button.height + 4
        padding: 6
        contentItem: Column {
            MenuRow {
                width: 220
                focus: true
                text: button.commands.aboutText
                onClicked: {
                    menu.close()
                    button.commands.openAbout()
                }
            }
            Rectangle {
                width: 220
                height: 9
                color: "transparent"
                Rectangle {
                    y: 4
                    width: parent.width
                    height: 1
                    color: Theme.separator
                }
            }
            MenuRow {
                width: 220
                text: button.commands.updatesText
                enabled: button.commands.canCheckForUpdates
            }
        }
    }
}
