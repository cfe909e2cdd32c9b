import QtQuick
import QtQuick.Layouts
import Vantrell

// The settings, and the sync log over them.
FocusScope {
    id: screen

    required property SettingsView model

    ScreenScroll {
        anchors.fill: parent
        visible: !screen.model.isLogShown
        spacing: 28
        maximumWidth: 720

        FormSection {
            width: parent.width
            heading: qsTr("App Store Connect API")
            footer: qsTr("Generate a team key under Users and Access → Integrations → App Store Connect "
                + "API with the Finance role. An In-App Purchase key looks identical but is rejected by "
                + "the reports endpoints. Your vendor number is on Payments and Financial Reports. "
                + "Credentials are stored in your desktop's keyring — never in the app's database.")
            CredentialsForm { model: screen.model.credentials }
        }
        DisplaySection {
            width: parent.width
            model: screen.model.display
        }
        SyncSection {
            width: parent.width
            model: screen.model.sync
            onLogPressed: screen.model.openLog()
        }
        FormSection {
            width: parent.width
            heading: qsTr("Updates")
            FormRow {
                label: "Vantrell"
                PlainText {
                    text: screen.model.version
                    color: Theme.secondary
                }
            }
        }
        ExportSection {
            width: parent.width
            model: screen.model.exports
        }
        FormSection {
            width: parent.width
            heading: qsTr("Privacy & Sync")
            FormRow {
                label: qsTr("Sync between devices")
                DataText {
                    Layout.maximumWidth: 420
                    text: screen.model.cloudStatus
                    color: Theme.tone(screen.model.cloudTone)
                }
            }
            PlainText {
                Layout.fillWidth: true
                wrapMode: Text.Wrap
                lineHeight: 1.2
                text: screen.model.privacyText
                font.pixelSize: Theme.callout
            }
        }
    }
    Loader {
        anchors.fill: parent
        active: screen.model.isLogShown
        onLoaded: (item as Item).forceActiveFocus()
        sourceComponent: SyncLogScreen {
            log: screen.model.log
            onBack: screen.model.closeLog()
        }
    }
}
