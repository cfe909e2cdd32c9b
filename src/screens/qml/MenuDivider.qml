import QtQuick
import Vantrell

// Sets groups of a menu's lines apart.
Item {
    implicitHeight: 9
    Divider {
        y: 4
        width: parent.width
    }
}
