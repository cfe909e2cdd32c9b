import QtQuick
import QtQuick.Templates as T
import Vantrell

// A row that takes the focus and can be copied. In a ListView the arrow keys reach it, elsewhere Tab does.
T.ItemDelegate {
    id: frame

    property string copyText: ""
    // It opens something when it is pressed.
    property bool opens: false
    // How far its ground reaches beyond it, on either side.
    property real overhang: 8
    // Tab stops here, and at what the row holds. Only at one row of a list, lest it takes a hundred steps.
    property bool tabStop: ListView.view === null || ListView.isCurrentItem

    signal activated()

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    topPadding: 8
    bottomPadding: 8
    // Whoever has the focus stays where Tab stops until it has gone elsewhere.
    focusPolicy: frame.tabStop || frame.activeFocus ? Qt.StrongFocus : Qt.ClickFocus
    Accessible.role: Accessible.ListItem
    Accessible.name: frame.copyText
    Accessible.focusable: true
    Accessible.onPressAction: frame.activated()
    onClicked: frame.activated()
    Keys.onReturnPressed: frame.activated()
    Keys.onEnterPressed: frame.activated()
    Keys.onPressed: event => copying.takeKey(event)
    // Coming to another row means coming to the row itself, not to what had the focus there last.
    onTabStopChanged: if (frame.tabStop) frame.focus = true
    // Whoever got the focus by the pointer is where the arrow keys go on from.
    onActiveFocusChanged: {
        const list = frame.ListView.view
        if (frame.activeFocus && list !== null)
            list.currentIndex = list.indexAt(frame.x + 1, frame.y + 1)
    }

    topInset: 2
    bottomInset: 2
    leftInset: -frame.overhang
    rightInset: -frame.overhang
    background: Rectangle {
        radius: Theme.controlRadius
        color: frame.opens && (frame.hovered || frame.down) ? Theme.quaternary : "transparent"
        border.width: frame.activeFocus ? 2 : 0
        border.color: Theme.accent
    }
    HoverHandler {
        enabled: frame.opens
        cursorShape: Qt.PointingHandCursor
    }
    CopyHandler {
        id: copying
        text: frame.copyText
        onMenuRequested: frame.forceActiveFocus(Qt.MouseFocusReason)
    }
}
