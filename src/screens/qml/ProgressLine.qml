import QtQuick
import QtQuick.Templates as T
import Vantrell

T.ProgressBar {
    id: bar

    implicitWidth: 220
    implicitHeight: 6
    Accessible.role: Accessible.ProgressBar

    background: Rectangle {
        radius: 3
        color: Theme.quaternary
        border.color: Theme.border
        border.width: 0.5
    }
    contentItem: Item {
        clip: true
        Rectangle {
            visible: !bar.indeterminate
            width: bar.visualPosition * parent.width
            height: parent.height
            radius: 3
            color: Theme.accentFill
        }
        Rectangle {
            visible: bar.indeterminate
            width: parent.width * 0.3
            height: parent.height
            radius: 3
            color: Theme.accentFill
            XAnimator on x {
                running: bar.indeterminate && bar.visible && !Theme.reducesMotion
                from: -66
                to: 220
                duration: 1400
                loops: Animation.Infinite
            }
        }
    }
}
