import QtQuick
import QtQuick.Templates as T
import Vantrell

// The button that names the chosen apps, and the menu to choose them.
PushButton {
    id: button

    required property AppFilterPicker picker

    text: picker.title
    symbol: "line.3.horizontal.decrease.circle"
    help: qsTr("Choose which apps to include")
    isQuiet: menu.visible
    Accessible.role: Accessible.ButtonMenu
    onClicked: menu.visible ? menu.close() : menu.open()

    Popover {
        id: menu
        x: button.width - width
        y: button.height + 4
        padding: 6
        contentItem: Column {
            CheckRow {
                id: all
                width: list.width
                focus: true
                KeyNavigation.down: list
                text: qsTr("All Apps")
                isOn: button.picker.isAllOn
                onToggledTo: isOn => button.picker.setAllOn(isOn)
            }
            MenuDivider { width: list.width }
            ListView {
                id: list
                width: 260
                height: Math.min(contentHeight, 420)
                clip: true
                boundsBehavior: Flickable.StopAtBounds
                highlightMoveDuration: 0
                KeyNavigation.priority: KeyNavigation.AfterItem
                KeyNavigation.up: all
                model: button.picker.items
                T.ScrollBar.vertical: ScrollLine {}
                delegate: CheckRow {
                    id: entry
                    required property appFilterItem row
                    required property int index
                    width: list.width
                    focusPolicy: ListView.isCurrentItem || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
                    text: row.title
                    isOn: row.isOn
                    onToggledTo: isOn => button.picker.setOn(entry.index, isOn)
                }
            }
        }
    }
}
