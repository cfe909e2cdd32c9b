import QtQuick
import QtQuick.Templates as T
import Vantrell

// A small pane that hangs on what it belongs to, and goes when something else is pressed. What it hangs on may
// toggle it, so pressing that leaves it alone.
T.Popup {
    id: popover

    margins: 8
    padding: 14
    modal: false
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent
    x: parent ? (parent.width - width) / 2 : 0
    y: parent ? parent.height + 8 : 0
    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding

    background: Rectangle {
        radius: 12
        color: Theme.raised
        border.color: Theme.border
        Rectangle {
            z: -1
            anchors.fill: parent
            anchors.margins: -1
            anchors.topMargin: 2
            anchors.bottomMargin: -4
            radius: 13
            color: "#1A000000"
        }
    }
    // Not as a transition, during which keys would go nowhere: it has them from the moment it is asked for to the
    // one it is left, and then whoever had them before.
    readonly property NumberAnimation fade: NumberAnimation {
        target: popover.contentItem ? popover.contentItem.parent : null
        property: "opacity"
        from: 0
        to: 1
        duration: Theme.quick
    }
    onAboutToShow: fade.restart()
}
