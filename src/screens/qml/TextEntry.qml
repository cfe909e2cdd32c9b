import QtQuick
import QtQuick.Templates as T
import Vantrell

// A line of text to type or paste. The model hears of each change by `onTextEdited`.
T.TextField {
    id: entry

    // What the text is, for whoever hears it.
    property string name: ""
    property string prompt: ""

    implicitWidth: 200
    implicitHeight: Theme.controlHeight
    leftPadding: 10
    rightPadding: 10
    verticalAlignment: TextInput.AlignVCenter
    maximumLength: 300
    selectByMouse: true
    font.family: Theme.family
    font.pixelSize: Theme.callout
    color: Theme.primary
    selectionColor: Theme.accentFill
    selectedTextColor: Theme.accentInk
    opacity: enabled ? 1 : 0.45
    Accessible.role: Accessible.EditableText
    Accessible.name: entry.name
    Accessible.description: entry.prompt
    // What the menu is about stays chosen while it is open.
    persistentSelection: menu.active
    Keys.onMenuPressed: entry.openMenu(entry.leftPadding, entry.height)

    function openMenu(x, y) {
        entry.forceActiveFocus(Qt.MouseFocusReason)
        menu.active = true
        menu.item.x = x
        menu.item.y = y
        menu.item.open()
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: point => entry.openMenu(point.position.x, point.position.y)
    }
    Loader {
        id: menu
        active: false
        sourceComponent: TextMenu {
            parent: entry
            field: entry
            onClosed: menu.active = false
        }
    }

    PlainText {
        visible: entry.text === "" && entry.preeditText === ""
        anchors.fill: parent
        anchors.leftMargin: entry.leftPadding
        anchors.rightMargin: entry.rightPadding
        verticalAlignment: Text.AlignVCenter
        spoken: false
        text: entry.prompt
        font.pixelSize: entry.font.pixelSize
        color: Theme.tertiary
    }
    background: Rectangle {
        radius: Theme.controlRadius
        color: Theme.control
        border.color: entry.activeFocus ? Theme.accent : Theme.border
        border.width: entry.activeFocus ? 2 : 1
    }
}
