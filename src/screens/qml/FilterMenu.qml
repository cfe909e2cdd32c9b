import QtQuick
import QtQuick.Templates as T
import Vantrell

// The button that names the chosen apps, and the menu to choose them.
PushButton {
    id: button

    required property AppFilterPicker picker

    text: picker.title
    symbol: picker.symbol
    help: picker.help
    Accessible.role: Accessible.ButtonMenu
    onClicked: menu.visible ? menu.close() : menu.open()

    Popover {
        id: menu
        x: button.width - width
        y: button.height + 4
        padding: 6
        contentItem: Column {
            CheckRow {
                width: list.width
                text: button.picker.allAppsTitle
                isOn: button.picker.isAllOn
                onToggledTo: isOn => button.picker.setAllOn(isOn)
            }
            Rectangle {
                width: list.width
                height: 9
                color: "transparent"
                Rectangle {
                    y: 4
                    width: parent.width
                    height: 1
                    color: Theme.separator
                }
            }
            ListView {
                id: list
                width: 260
                height: Math.min(contentHeight, 420)
                clip: true
                boundsBehavior: Flickable.StopAtBounds
                model: button.picker.items
                T.ScrollBar.vertical: ScrollLine {}
                delegate: CheckRow {
                    id: entry
                    required property appFilterItem row
                    required property int index
                    width: list.width
                    text: row.title
                    isOn: row.isOn
                    onToggledTo: isOn => button.picker.setOn(entry.index, isOn)
                }
            }
        }
    }
}
