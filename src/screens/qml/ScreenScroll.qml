import QtQuick
import QtQuick.Templates as T
import Vantrell

// A screen that scrolls: its content in a column with the screen's margins.
Flickable {
    id: scroll

    default property alias content: column.data
    property real spacing: 20

    contentWidth: width
    contentHeight: column.height + 40
    boundsBehavior: Flickable.StopAtBounds
    flickableDirection: Flickable.VerticalFlick
    clip: true
    T.ScrollBar.vertical: ScrollLine {}
    Keys.onUpPressed: scroll.flick(0, 600)
    Keys.onDownPressed: scroll.flick(0, -600)

    Column {
        id: column
        x: 20
        y: 20
        width: Math.min(scroll.width - 40, 1400)
        spacing: scroll.spacing
    }
}
