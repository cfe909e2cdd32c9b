import QtQuick
import Vantrell

// A numbered step. Its text is ours, and the only one that is shown with markup.
Item {
    id: entry

    required property welcomeStep row

    implicitHeight: words.height

    Rectangle {
        id: mark
        anchors.left: parent.left
        width: 20
        height: 20
        radius: 10
        color: Theme.selection
        PlainText {
            anchors.centerIn: parent
            text: entry.row.number
            font.pixelSize: Theme.caption
            font.weight: Font.Bold
            color: Theme.accent
        }
    }
    // Rich and not styled text: the latter doesn't know code.
    Text {
        id: words
        anchors.left: mark.right
        anchors.leftMargin: 12
        anchors.right: parent.right
        wrapMode: Text.Wrap
        textFormat: Text.RichText
        lineHeight: 1.2
        text: entry.row.styledText
        font.family: Theme.family
        font.pixelSize: Theme.callout
        color: Theme.primary
        Accessible.role: Accessible.StaticText
        Accessible.name: entry.row.plainText
    }
}
