import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Vantrell

// Why the program can't start, in place of its window.
T.ApplicationWindow {
    id: window

    required property string message
    required property bool isDark
    required property bool isMirrored

    title: "Vantrell"
    width: 560
    height: column.implicitHeight + 56
    color: Theme.window
    font.family: Theme.family
    font.pixelSize: Theme.body
    visible: true
    LayoutMirroring.enabled: window.isMirrored
    LayoutMirroring.childrenInherit: true

    Binding {
        target: Theme
        property: "dark"
        value: window.isDark
    }
    Shortcut {
        sequences: ["Escape", StandardKey.Close, StandardKey.Quit]
        onActivated: window.close()
    }
    ColumnLayout {
        id: column
        anchors.fill: parent
        anchors.margins: 28
        spacing: 18
        ErrorBox {
            Layout.fillWidth: true
            message: window.message
        }
        PlainText {
            Layout.fillWidth: true
            wrapMode: Text.Wrap
            text: qsTr("Nothing was changed. Vantrell ends when you close this window.")
            color: Theme.secondary
        }
        RowLayout {
            Layout.alignment: Qt.AlignRight
            spacing: 10
            PushButton {
                text: qsTr("Copy")
                onClicked: Theme.clipboard.copy(window.message)
            }
            PushButton {
                prominent: true
                focus: true
                text: qsTr("Close")
                onClicked: window.close()
            }
        }
    }
}
