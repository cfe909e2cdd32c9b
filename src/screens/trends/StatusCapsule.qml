import QtQuick
import Vantrell

// The mark beside a day whose report isn't there.
Rectangle {
    id: capsule

    required property statusBadge badge
    readonly property color ink: Theme.tone(capsule.badge.tone)

    visible: capsule.badge.text !== ""
    implicitWidth: label.implicitWidth + 12
    implicitHeight: label.implicitHeight + 2
    radius: height / 2
    color: Qt.rgba(ink.r, ink.g, ink.b, 0.15)

    PlainText {
        id: label
        anchors.fill: parent
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        text: capsule.badge.text
        font.pixelSize: Theme.smallest
        color: capsule.ink
    }
}
