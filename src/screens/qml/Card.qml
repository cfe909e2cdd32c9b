import QtQuick
import Vantrell

// The rounded ground that blocks of a screen lie on.
Rectangle {
    radius: Theme.cardRadius
    color: Theme.card
    border.color: Theme.border
    border.width: 1
}
