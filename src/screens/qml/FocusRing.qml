import QtQuick
import QtQuick.Templates as T
import Vantrell

// Shows which control the keyboard speaks to.
Rectangle {
    required property T.Control control

    anchors.fill: parent
    anchors.margins: -3
    radius: Theme.controlRadius + 3
    color: "transparent"
    border.width: 2
    border.color: Theme.accent
    visible: control.activeFocus && control.visualFocus
}
