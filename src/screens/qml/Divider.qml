import QtQuick
import Vantrell

Rectangle {
    implicitHeight: 1
    color: Theme.separator
    Accessible.ignored: true
}
