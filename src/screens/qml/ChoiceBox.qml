import QtQuick
import QtQuick.Templates as T
import Vantrell

// A choice among texts, in a list that hangs below. `onActivated` tells the model what the user chose.
T.ComboBox {
    id: box

    // What is chosen here, for whoever hears it.
    property string name: ""
    readonly property string text: displayText

    implicitWidth: Math.max(120, shown.implicitWidth + leftPadding + rightPadding + 24)
    implicitHeight: Theme.controlHeight
    leftPadding: 12
    rightPadding: 10
    focusPolicy: Qt.StrongFocus
    font.family: Theme.family
    font.pixelSize: Theme.callout
    opacity: enabled ? 1 : 0.45
    Accessible.role: Accessible.ComboBox
    Accessible.name: box.name
    Accessible.description: box.displayText
    Accessible.onPressAction: box.popup.open()

    // Letters typed in a row choose what begins with them.
    Keys.onPressed: event => {
        const plain = (event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier)) === 0
        if (!box.popup.visible && plain && event.text.trim() !== "") {
            event.accepted = typed.add(event.text)
        }
    }
    // On release, as the box itself takes the choice on release.
    Keys.onReleased: event => {
        const confirms = event.key === Qt.Key_Return || event.key === Qt.Key_Enter
        if (confirms && !box.popup.visible) {
            box.popup.open()
            event.accepted = true
        }
    }
    Timer {
        id: typed
        property string letters: ""
        interval: 1000
        onTriggered: letters = ""
        function add(more) {
            letters += more
            restart()
            const place = box.find(letters, Qt.MatchStartsWith)
            if (place < 0) {
                letters = ""
                return false
            }
            box.activated(place)
            return true
        }
    }
    contentItem: DataText {
        id: shown
        spoken: false
        verticalAlignment: Text.AlignVCenter
        text: box.displayText
        font: box.font
    }
    indicator: SymbolItem {
        x: box.mirrored ? 8 : box.width - width - 8
        y: (box.height - height) / 2
        width: 14
        height: 14
        name: "chevron.up.chevron.down"
        color: Theme.secondary
    }
    background: Rectangle {
        radius: Theme.controlRadius
        color: box.pressed || box.hovered ? Theme.controlPressed : Theme.control
        border.color: Theme.border
        FocusRing { control: box }
    }
    delegate: T.ItemDelegate {
        id: item
        required property int index
        readonly property bool current: box.currentIndex === index
        width: ListView.view ? ListView.view.width : implicitWidth
        height: 30
        highlighted: box.highlightedIndex === index
        text: box.textAt(index)
        Accessible.role: Accessible.ListItem
        Accessible.name: item.text
        Accessible.selectable: true
        Accessible.selected: item.current
        contentItem: Item {
            SymbolItem {
                id: mark
                x: item.mirrored ? parent.width - width - 8 : 8
                anchors.verticalCenter: parent.verticalCenter
                visible: item.current
                width: 14
                height: 14
                name: "checkmark"
                color: Theme.accent
            }
            DataText {
                anchors.fill: parent
                anchors.leftMargin: 28
                anchors.rightMargin: 10
                verticalAlignment: Text.AlignVCenter
                spoken: false
                text: item.text
                font.pixelSize: Theme.callout
            }
        }
        background: Rectangle {
            radius: 6
            color: item.highlighted ? Theme.selection : "transparent"
        }
    }
    popup: T.Popup {
        y: box.height + 4
        width: Math.max(box.width, 140)
        height: Math.min(contentItem.implicitHeight, 320) + topPadding + bottomPadding
        margins: 8
        padding: 6
        contentItem: ListView {
            clip: true
            implicitHeight: contentHeight
            boundsBehavior: Flickable.StopAtBounds
            model: box.delegateModel
            currentIndex: box.highlightedIndex
            highlightMoveDuration: 0
            T.ScrollBar.vertical: ScrollLine {}
            Accessible.role: Accessible.List
            Accessible.name: box.name
        }
        background: Rectangle {
            radius: 12
            color: Theme.raised
            border.color: Theme.border
        }
    }
}
