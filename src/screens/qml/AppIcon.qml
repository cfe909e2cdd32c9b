import QtQuick
import QtQuick.Window as W
import Vantrell

// The picture of an app, or what stands for it until there is one.
Item {
    id: icon

    // Of the provider of pictures, which rounds the corners; empty where no address is known.
    required property string source
    required property real size

    implicitWidth: size
    implicitHeight: size
    Accessible.ignored: true

    Rectangle {
        anchors.fill: parent
        visible: !picture.isShown
        radius: icon.size * 0.22
        color: Theme.quaternary
        border.color: Theme.border
        SymbolItem {
            anchors.centerIn: parent
            width: icon.size * 0.5
            height: width
            name: "app.dashed"
            color: Theme.tertiary
        }
    }
    Image {
        id: picture
        // Where there is no picture the provider ends without a width, and without an error.
        readonly property bool isShown: status === Image.Ready && implicitWidth > 0
        readonly property int pixels: Math.ceil(icon.size * W.Screen.devicePixelRatio)
        anchors.fill: parent
        visible: isShown
        source: icon.source
        sourceSize.width: pixels
        sourceSize.height: pixels
        fillMode: Image.Stretch
        smooth: true
    }
}
