import QtQuick
import QtQuick.Templates as T
import Vantrell

// A figure of several currencies. Pressing it opens what it is made of.
T.AbstractButton {
    id: figure

    required property moneyValue money
    property alias fontSizeMode: amount.fontSizeMode
    property alias minimumPixelSize: amount.minimumPixelSize
    property alias horizontalAlignment: amount.horizontalAlignment
    property real inkOpacity: 1

    // It can be copied by itself, since no row can be.
    property bool standsAlone: false
    property bool showBreakdown: false

    text: figure.money.text
    implicitWidth: amount.implicitWidth + (mark.visible ? mark.width + 4 : 0)
    implicitHeight: amount.implicitHeight
    focusPolicy: Qt.TabFocus
    Accessible.role: Accessible.Button
    Accessible.name: figure.money.spoken
    Accessible.description: figure.money.warning
    Accessible.focusable: true
    Accessible.onPressAction: figure.clicked()
    Keys.onReturnPressed: figure.clicked()
    Keys.onEnterPressed: figure.clicked()
    Keys.onPressed: event => {
        if (figure.standsAlone)
            (copying.item as CopyHandler).takeKey(event)
    }
    onClicked: figure.showBreakdown = !figure.showBreakdown

    PlainText {
        id: amount
        anchors.verticalCenter: parent.verticalCenter
        width: figure.width - (mark.visible ? mark.width + 4 : 0)
        horizontalAlignment: Text.AlignRight
        spoken: false
        text: figure.text
        font: figure.font
        opacity: figure.inkOpacity
    }
    Loader {
        id: mark
        active: figure.money.warning !== ""
        visible: active
        anchors.verticalCenter: parent.verticalCenter
        anchors.right: parent.right
        width: Theme.smallest
        height: Theme.smallest
        sourceComponent: SymbolItem {
            name: "exclamationmark.triangle.fill"
            color: Theme.warning
        }
    }
    background: Rectangle {
        radius: 5
        anchors.fill: parent
        anchors.margins: -3
        color: figure.hovered ? Theme.quaternary : "transparent"
        border.width: figure.visualFocus ? 2 : 0
        border.color: Theme.accent
    }
    HoverHandler { cursorShape: Qt.PointingHandCursor }
    Loader {
        id: copying
        anchors.fill: parent
        active: figure.standsAlone
        sourceComponent: CopyHandler { text: figure.text }
    }
    Loader {
        active: figure.hovered && mark.visible
        sourceComponent: Hint {
            parent: figure
            shown: true
            text: figure.money.warning
        }
    }
    Loader {
        active: figure.showBreakdown
        sourceComponent: BreakdownPopover {
            parent: figure
            money: figure.money
            onClosed: figure.showBreakdown = false
        }
    }
}
