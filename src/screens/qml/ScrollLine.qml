import QtQuick
import QtQuick.Templates as T
import Vantrell

T.ScrollBar {
    id: bar

    padding: 2
    minimumSize: 0.05
    implicitWidth: 10
    implicitHeight: 10
    visible: size < 1
    Accessible.ignored: true
    contentItem: Rectangle {
        implicitWidth: 6
        implicitHeight: 6
        radius: 3
        color: Theme.tertiary
        opacity: bar.active ? 0.7 : 0.25
    }
}
