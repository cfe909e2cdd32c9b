import QtQuick

// Opens one of our own addresses in the desktop's browser; without an address it can't be pressed.
TextLink {
    id: link

    required property string address

    enabled: address !== ""
    Accessible.description: link.address
    onClicked: Qt.openUrlExternally(link.address)
}
