import QtQuick
import Vantrell

// Says that something is under way whose end can't be told.
Item {
    id: spinner

    property bool running: true

    implicitWidth: 14
    implicitHeight: 14
    Repeater {
        model: 8
        Rectangle {
            required property int index
            x: spinner.width / 2 - 1
            y: 0
            width: 2
            height: spinner.height * 0.3
            radius: 1
            color: Theme.secondary
            opacity: 0.25 + 0.75 * ((index + dial.step) % 8) / 7
            transform: Rotation {
                origin.x: 1
                origin.y: spinner.height / 2
                angle: -45 * index
            }
        }
    }
    Timer {
        id: dial
        property int step: 0
        interval: 100
        repeat: true
        running: spinner.running && spinner.visible && !Theme.reducesMotion
        onTriggered: step = (step + 1) % 8
    }
}
