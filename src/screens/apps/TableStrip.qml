import QtQuick
import Vantrell

// One row of a table. Pushing it aside pushes all rows of the table.
Item {
    id: strip

    required property TableShape table
    readonly property real contentWidth: Math.max(strip.width, strip.table.tableWidth)
    readonly property bool mirrored: LayoutMirroring.enabled
    default property alias contents: content.data

    function push(distance) {
        strip.table.push(strip.mirrored ? -distance : distance)
    }

    clip: strip.table.excess > 0
    Item {
        id: content
        x: strip.mirrored ? strip.table.offset - strip.table.excess : -strip.table.offset
        width: strip.contentWidth
        height: strip.height
    }
    Loader {
        anchors.fill: parent
        active: strip.clip
        sourceComponent: Item {
            DragHandler {
                target: null
                yAxis.enabled: false
                property real reached: 0
                onActiveChanged: reached = 0
                onTranslationChanged: {
                    strip.push(reached - activeTranslation.x)
                    reached = activeTranslation.x
                }
            }
            WheelHandler {
                target: null
                orientation: Qt.Horizontal
                acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
                onWheel: event => strip.push(-(event.pixelDelta.x || event.angleDelta.x / 2))
            }
        }
    }
}
