import QtQuick
import QtQuick.Layouts
import Vantrell

// A question beside what it is about. The careful answer has the keyboard.
Rectangle {
    id: box

    required property Question question
    readonly property bool isAsked: box.question.text !== ""

    visible: box.isAsked
    implicitHeight: content.implicitHeight + 28
    Layout.fillWidth: true
    radius: Theme.controlRadius
    color: Theme.quaternary
    border.color: Theme.border
    Accessible.role: Accessible.AlertMessage
    Accessible.name: box.question.text
    onIsAskedChanged: if (box.isAsked) cancel.forceActiveFocus(Qt.TabFocusReason)
    Keys.onEscapePressed: box.question.dismiss()

    ColumnLayout {
        id: content
        anchors.fill: parent
        anchors.margins: 14
        spacing: 12
        PlainText {
            Layout.fillWidth: true
            wrapMode: Text.Wrap
            text: box.question.text
            font.pixelSize: Theme.callout
        }
        Flow {
            Layout.fillWidth: true
            spacing: 10
            PushButton {
                id: cancel
                text: qsTr("Cancel")
                onClicked: box.question.dismiss()
            }
            PushButton {
                visible: text !== ""
                prominent: true
                text: box.question.otherWay
                onClicked: box.question.goOtherWay()
            }
            PushButton {
                destructive: true
                text: box.question.consent
                onClicked: box.question.agree()
            }
        }
    }
}
