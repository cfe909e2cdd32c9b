import QtQuick
import QtQuick.Templates as T
import Vantrell

// A figure of several currencies. Pressing it opens what it is made of. A screen has hundreds, so that what shows
// only at times is only built then.
T.AbstractButton {
    id: figure

    required property moneyValue money
    property alias fontSizeMode: amount.fontSizeMode
    property alias minimumPixelSize: amount.minimumPixelSize
    property alias horizontalAlignment: amount.horizontalAlignment
    property alias inkOpacity: amount.opacity
    property alias inkColor: amount.color

    property bool showBreakdown: false
    readonly property real markWidth: figure.money.warning === "" ? 0 : Theme.smallest + 4

    text: figure.money.text
    implicitWidth: amount.implicitWidth + figure.markWidth
    implicitHeight: amount.implicitHeight
    focusPolicy: Qt.TabFocus
    Accessible.role: Accessible.Button
    Accessible.name: figure.money.spoken
    Accessible.description: figure.money.warning
    Accessible.focusable: true
    Accessible.onPressAction: figure.clicked()
    Keys.onReturnPressed: figure.clicked()
    Keys.onEnterPressed: figure.clicked()
    onClicked: figure.showBreakdown = !figure.showBreakdown
    // What has left the sight opens nothing.
    onVisibleChanged: if (!figure.visible) figure.showBreakdown = false

    Loader {
        anchors.fill: parent
        active: figure.hovered || figure.visualFocus || figure.showBreakdown || figure.markWidth > 0
        sourceComponent: FigureExtras {
            owner: figure
            money: figure.money
            isCut: amount.truncated
            inkWidth: amount.contentWidth + figure.markWidth
            showsBreakdown: figure.showBreakdown
            onClosed: figure.showBreakdown = false
        }
    }
    PlainText {
        id: amount
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        width: figure.width - figure.markWidth
        horizontalAlignment: Text.AlignRight
        spoken: false
        text: figure.text
        font: figure.font
    }
}
