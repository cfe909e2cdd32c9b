import QtQuick
import Vantrell

// The part of a card that lies behind one row of it.
Item {
    id: slice

    property bool first: true
    property bool last: true

    clip: true
    Card {
        anchors.fill: parent
        anchors.topMargin: slice.first ? 0 : -Theme.cardRadius
        anchors.bottomMargin: slice.last ? 0 : -Theme.cardRadius
    }
}
