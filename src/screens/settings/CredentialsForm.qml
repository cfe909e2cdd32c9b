import QtQuick
import QtQuick.Dialogs
import QtQuick.Layouts
import Vantrell

// The key: three texts, a file, and what can be done with them.
ColumnLayout {
    id: form

    required property CredentialsEditor model

    spacing: 16

    CredentialsEntry {
        label: qsTr("Issuer ID")
        prompt: "3f7a91c2-5d04-4be8-9a16-c07e2d8b4f15"
        hint: qsTr("The UUID shown at the top of the Integrations → App Store Connect API page.")
        value: form.model.issuerID
        onEdited: text => form.model.issuerID = text
    }
    CredentialsEntry {
        label: qsTr("Key ID")
        prompt: "7QK2MZ8T5W"
        hint: qsTr("10 characters, listed beside the key on the same page. Auto-fills when you import an "
            + "AuthKey_<Key ID>.p8 file.")
        value: form.model.keyID
        onEdited: text => form.model.keyID = text
    }
    CredentialsEntry {
        label: qsTr("Vendor Number")
        prompt: "60419372"
        hint: qsTr("The 8-digit number in the top-left corner of Payments and Financial Reports.")
        value: form.model.vendorNumber
        onEdited: text => form.model.vendorNumber = text
    }
    ColumnLayout {
        spacing: 10
        PlainText {
            text: qsTr("Private Key")
            font.pixelSize: Theme.callout
            font.weight: Font.Medium
        }
        RowLayout {
            spacing: 12
            PushButton {
                id: importer
                symbol: "key.fill"
                text: form.model.hasKey ? qsTr("Replace .p8 Key…") : qsTr("Import .p8 Key…")
                onClicked: dialog.open()
            }
            RowLayout {
                visible: form.model.hasKey
                spacing: 5
                SymbolItem {
                    implicitWidth: 14
                    implicitHeight: 14
                    name: "checkmark.circle.fill"
                    color: Theme.good
                }
                PlainText {
                    text: qsTr("Key loaded")
                    font.pixelSize: Theme.caption
                    color: Theme.good
                }
            }
        }
        FormNote {
            text: qsTr("The AuthKey_….p8 file you downloaded when the key was created — Apple offers that "
                + "download only once.")
        }
    }
    Flow {
        Layout.fillWidth: true
        spacing: 10
        PushButton {
            prominent: true
            text: qsTr("Save")
            enabled: form.model.isComplete
            onClicked: form.model.save()
        }
        PushButton {
            text: qsTr("Test Connection")
            spinning: form.model.isTesting
            enabled: form.model.isComplete && !form.model.isTesting
            onClicked: form.model.test()
        }
        PushButton {
            visible: form.model.canRemove
            destructive: true
            text: qsTr("Remove Key")
            onClicked: form.model.removeKey()
        }
    }
    QuestionBox { question: form.model.question }
    FormNote {
        visible: text !== ""
        text: form.model.status
        color: form.model.statusIsError ? Theme.bad : Theme.secondary
    }
    FormNote {
        visible: text !== ""
        text: form.model.testResult
    }
    Repeater {
        model: form.model.otherStores
        NavigationRow {
            required property int index
            required property string modelData
            Layout.fillWidth: true
            text: modelData
            onClicked: form.model.openOther(index)
        }
    }
    FileDialog {
        id: dialog
        title: importer.text
        fileMode: FileDialog.OpenFile
        currentFolder: form.model.fileFolder
        nameFilters: [qsTr("Private keys (*.p8)"), qsTr("Text files (*.txt *.pem)"), qsTr("All files (*)")]
        onAccepted: form.model.importKey(selectedFile)
    }
}
