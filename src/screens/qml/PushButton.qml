import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Vantrell

T.Button {
    id: button

    property string symbol: ""
    property bool prominent: false
    property bool destructive: false
    property bool borderless: false
    property bool spinning: false
    property string help: ""
    // What hangs on it would lie under its help.
    property bool isQuiet: false
    property real textSize: Theme.callout
    readonly property color ink: prominent ? Theme.accentInk
        : destructive ? Theme.bad
        : borderless ? Theme.accent : Theme.primary

    implicitWidth: Math.max(implicitContentWidth + leftPadding + rightPadding, borderless ? 0 : 36)
    implicitHeight: borderless ? 26 : Theme.controlHeight
    leftPadding: borderless ? 6 : 12
    rightPadding: leftPadding
    focusPolicy: Qt.StrongFocus
    opacity: enabled || spinning ? 1 : 0.45
    Accessible.role: Accessible.Button
    Accessible.name: button.text
    Accessible.description: button.help
    Accessible.onPressAction: button.clicked()

    Keys.onReturnPressed: if (enabled) button.clicked()
    Keys.onEnterPressed: if (enabled) button.clicked()

    contentItem: Item {
        implicitWidth: label.implicitWidth
        implicitHeight: label.implicitHeight
        // Keeps its place behind the spinner, lest the button shrinks and jumps.
        RowLayout {
            id: label
            anchors.fill: parent
            opacity: button.spinning ? 0 : 1
            spacing: 6
            Item { Layout.fillWidth: true }
            SymbolItem {
                visible: button.symbol !== ""
                name: button.symbol
                color: button.ink
            }
            DataText {
                id: words
                visible: text !== ""
                isExplained: false
                Layout.maximumWidth: Math.ceil(implicitWidth)
                Layout.fillWidth: true
                spoken: false
                text: button.text
                font.pixelSize: button.textSize
                font.weight: Font.Medium
                color: button.ink
            }
            Item { Layout.fillWidth: true }
        }
        Spinner {
            anchors.centerIn: parent
            visible: button.spinning
        }
    }
    background: Rectangle {
        radius: Theme.controlRadius
        color: button.prominent ? (button.down ? Qt.darker(Theme.accentFill, 1.15) : Theme.accentFill)
            : button.borderless ? (button.down || button.hovered ? Theme.quaternary : "transparent")
            : (button.down || button.hovered ? Theme.controlPressed : Theme.control)
        border.width: button.prominent || button.borderless ? 0 : 1
        border.color: Theme.border
        FocusRing { control: button }
    }
    Hint {
        shown: button.hovered && !button.isQuiet
        text: words.truncated ? button.text : button.help
    }
}
