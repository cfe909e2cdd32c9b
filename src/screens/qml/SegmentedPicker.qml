import QtQuick
import Vantrell

// A few choices beside each other, one of which is in force. The arrow keys change it. Built on plain items,
// since controls tell a screen reader roles of their own.
Item {
    id: picker

    required property string name
    // Texts.
    required property var titles
    required property int place
    signal chosen(int place)

    function step(steps) {
        const next = picker.place + (picker.LayoutMirroring.enabled ? -steps : steps)
        if (next >= 0 && next < picker.titles.length) {
            picker.chosen(next)
        }
    }

    implicitWidth: segments.implicitWidth + 4
    implicitHeight: Theme.controlHeight
    activeFocusOnTab: true
    Accessible.role: Accessible.Grouping
    Accessible.name: picker.name
    Accessible.focusable: true
    Keys.onLeftPressed: picker.step(-1)
    Keys.onRightPressed: picker.step(1)

    Rectangle {
        anchors.fill: parent
        radius: Theme.controlRadius
        color: Theme.quaternary
        border.color: Theme.border
        Rectangle {
            anchors.fill: parent
            anchors.margins: -3
            visible: picker.activeFocus
            radius: Theme.controlRadius + 3
            color: "transparent"
            border.width: 2
            border.color: Theme.accent
        }
    }
    Row {
        id: segments
        anchors.left: parent.left
        anchors.leftMargin: 2
        y: 2
        height: picker.height - 4
        Repeater {
            model: picker.titles
            Rectangle {
                id: segment
                required property string modelData
                required property int index
                readonly property bool isChosen: segment.index === picker.place
                width: label.implicitWidth + 28
                height: segments.height
                radius: Theme.controlRadius - 2
                color: segment.isChosen ? (Theme.dark ? Theme.controlPressed : Theme.raised)
                    : hover.hovered ? Theme.border : "transparent"
                border.width: segment.isChosen ? 1 : 0
                border.color: Theme.border
                Accessible.role: Accessible.RadioButton
                Accessible.name: segment.modelData
                Accessible.checkable: true
                Accessible.checked: segment.isChosen
                Accessible.onPressAction: picker.chosen(segment.index)
                HoverHandler { id: hover }
                TapHandler { onTapped: picker.chosen(segment.index) }
                PlainText {
                    id: label
                    anchors.centerIn: parent
                    spoken: false
                    text: segment.modelData
                    font.pixelSize: Theme.callout
                    font.weight: Font.Medium
                    color: segment.isChosen ? Theme.primary : Theme.secondary
                }
            }
        }
    }
}
