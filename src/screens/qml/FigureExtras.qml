import QtQuick
import QtQuick.Templates as T
import Vantrell

// What a figure shows beside its amount: the mark of a warning, and what comes while the pointer or the keyboard
// is at it.
Item {
    id: extras

    required property T.AbstractButton owner
    required property moneyValue money
    // The amount is longer than its place.
    required property bool isCut
    required property real inkWidth
    required property bool showsBreakdown
    signal closed()

    Rectangle {
        anchors.right: parent.right
        anchors.margins: -3
        y: -3
        width: extras.inkWidth + 6
        height: parent.height + 6
        radius: 5
        color: extras.owner.hovered ? Theme.quaternary : "transparent"
        border.width: extras.owner.visualFocus ? 2 : 0
        border.color: Theme.accent
    }
    SymbolItem {
        visible: extras.money.warning !== ""
        anchors.verticalCenter: parent.verticalCenter
        anchors.right: parent.right
        width: Theme.smallest
        height: Theme.smallest
        name: "exclamationmark.triangle.fill"
        color: Theme.warning
    }
    HoverHandler { cursorShape: Qt.PointingHandCursor }
    Hint {
        parent: extras.owner
        shown: extras.owner.hovered && !extras.showsBreakdown
        text: !extras.isCut ? extras.money.warning
            : extras.money.warning === "" ? extras.money.text : extras.money.text + " · " + extras.money.warning
    }
    Loader {
        active: extras.showsBreakdown
        sourceComponent: BreakdownPopover {
            parent: extras.owner
            money: extras.money
            onClosed: extras.closed()
        }
    }
}
