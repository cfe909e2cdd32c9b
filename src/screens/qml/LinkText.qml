import QtQuick
import QtQuick.Templates as T
import Vantrell

// Opens one of our own addresses in the desktop's browser; without an address it can't be pressed.
T.AbstractButton {
    id: link

    required property string address

    enabled: address !== ""
    implicitWidth: label.implicitWidth
    implicitHeight: label.implicitHeight + 4
    focusPolicy: Qt.StrongFocus
    opacity: enabled ? 1 : 0.6
    Accessible.role: Accessible.Link
    Accessible.name: link.text
    Accessible.description: link.address
    Accessible.onPressAction: link.clicked()
    Keys.onReturnPressed: link.clicked()
    Keys.onEnterPressed: link.clicked()
    onClicked: Qt.openUrlExternally(link.address)

    contentItem: DataText {
        id: label
        verticalAlignment: Text.AlignVCenter
        spoken: false
        text: link.text
        font.pixelSize: Theme.callout
        font.weight: Font.Medium
        font.underline: link.hovered
        color: Theme.accent
    }
    background: FocusRing { control: link }
    HoverHandler { cursorShape: Qt.PointingHandCursor }
}
