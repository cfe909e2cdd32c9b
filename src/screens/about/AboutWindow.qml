import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Vantrell

T.ApplicationWindow {
    id: window

    required property AboutView model
    property bool mirrored: false

    title: qsTr("About Vantrell")
    width: column.implicitWidth + 120
    height: column.implicitHeight + 72
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    flags: Qt.Dialog
    color: Theme.window
    visible: true
    LayoutMirroring.enabled: window.mirrored
    LayoutMirroring.childrenInherit: true
    onClosing: window.model.close()

    Connections {
        target: window.model
        function onRaiseRequested() {
            window.raise()
            window.requestActivate()
        }
    }
    Shortcut {
        sequences: ["Escape", StandardKey.Close]
        onActivated: window.close()
    }
    ColumnLayout {
        id: column
        anchors.centerIn: parent
        spacing: 6
        ProgramIcon {
            Layout.alignment: Qt.AlignHCenter
            Layout.preferredWidth: 100
            Layout.preferredHeight: 100
            Layout.bottomMargin: 8
        }
        PlainText {
            Layout.alignment: Qt.AlignHCenter
            text: "Vantrell"
            font.pixelSize: Theme.title2
            font.weight: Font.DemiBold
        }
        PlainText {
            Layout.alignment: Qt.AlignHCenter
            text: window.model.version
            font.pixelSize: Theme.callout
            color: Theme.secondary
        }
        PushButton {
            property bool isDone: false

            Layout.alignment: Qt.AlignHCenter
            Layout.topMargin: 10
            text: isDone ? qsTr("Copied") : qsTr("Copy Diagnostics")
            help: qsTr("Copies version, system and the state of store and reports, without key, names or amounts.")
            onClicked: {
                window.model.copyDiagnostics()
                isDone = true
            }
        }
    }
}
