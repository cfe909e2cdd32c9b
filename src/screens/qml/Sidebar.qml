import QtQuick
import QtQuick.Templates as T
import Vantrell

// The list of the screens, and how the last run went.
Rectangle {
    id: sidebar

    required property RootView root

    color: Theme.sidebar

    ApplicationMenu {
        id: menu
        anchors.left: parent.left
        anchors.top: parent.top
        anchors.margins: 14
        commands: sidebar.root.menu
    }
    ListView {
        id: list
        anchors.fill: parent
        anchors.margins: 10
        anchors.topMargin: 52
        anchors.bottomMargin: footer.height + 10
        spacing: 2
        interactive: contentHeight > height
        activeFocusOnTab: true
        currentIndex: sidebar.root.selection
        model: sidebar.root.destinations
        keyNavigationEnabled: false
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Screens")
        Keys.onUpPressed: sidebar.root.selectNext(-1)
        Keys.onDownPressed: sidebar.root.selectNext(1)
        delegate: T.ItemDelegate {
            id: item
            required property destinationItem row
            readonly property bool current: row.destination === sidebar.root.selection
            width: list.width
            height: 34
            focusPolicy: Qt.NoFocus
            text: row.title
            Accessible.role: Accessible.ListItem
            Accessible.name: row.title
            Accessible.selectable: true
            Accessible.selected: current
            onClicked: sidebar.root.select(row.destination)
            contentItem: Item {
                SymbolItem {
                    id: symbol
                    anchors.left: parent.left
                    anchors.leftMargin: 10
                    anchors.verticalCenter: parent.verticalCenter
                    width: 18
                    height: 18
                    name: item.row.symbol
                    color: item.current ? Theme.accent : Theme.secondary
                }
                DataText {
                    anchors.left: symbol.right
                    anchors.leftMargin: 10
                    anchors.right: parent.right
                    anchors.rightMargin: 8
                    anchors.verticalCenter: parent.verticalCenter
                    spoken: false
                    text: item.text
                    font.weight: item.current ? Font.Medium : Font.Normal
                }
            }
            background: Rectangle {
                radius: Theme.controlRadius
                color: item.current ? Theme.selection : item.hovered ? Theme.quaternary : "transparent"
                border.width: item.current && list.activeFocus ? 2 : 0
                border.color: Theme.accent
            }
        }
    }
    Row {
        id: footer
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        padding: 10
        spacing: 6
        Spinner {
            id: spinner
            visible: sidebar.root.isSyncing
            width: 11
            height: 11
            anchors.verticalCenter: parent.verticalCenter
        }
        PlainText {
            width: footer.width - 20 - (spinner.visible ? spinner.width + 6 : 0)
            wrapMode: Text.Wrap
            maximumLineCount: 3
            elide: Text.ElideRight
            text: sidebar.root.footer
            font.pixelSize: Theme.smallest
            color: Theme.secondary
        }
    }
}
