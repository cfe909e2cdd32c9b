import QtQuick
import Vantrell

// A date and the calendar to choose another.
Row {
    id: picker

    required property DateField field
    // False where the title stands elsewhere.
    property bool showsTitle: true

    spacing: 8

    PlainText {
        visible: picker.showsTitle
        anchors.verticalCenter: parent.verticalCenter
        spoken: false
        text: picker.field.title
        font.pixelSize: Theme.callout
        color: Theme.secondary
    }
    PushButton {
        id: button
        text: picker.field.text
        symbol: "calendar"
        Accessible.role: Accessible.ButtonDropDown
        Accessible.name: picker.field.spoken
        onClicked: {
            if (leaf.active) {
                leaf.active = false
            } else {
                picker.field.openGrid()
                leaf.active = true
            }
        }
        Loader {
            id: leaf
            active: false
            sourceComponent: MonthLeaf {
                parent: button
                grid: picker.field.grid
                visible: true
                onClosed: leaf.active = false
            }
        }
    }
}
