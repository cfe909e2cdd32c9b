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
        field: form.model.issuerField
        value: form.model.issuerID
        onEdited: text => form.model.issuerID = text
    }
    CredentialsEntry {
        field: form.model.keyField
        value: form.model.keyID
        onEdited: text => form.model.keyID = text
    }
    CredentialsEntry {
        field: form.model.vendorField
        value: form.model.vendorNumber
        onEdited: text => form.model.vendorNumber = text
    }
    ColumnLayout {
        spacing: 10
        PlainText {
            text: form.model.fileTitle
            font.pixelSize: Theme.callout
            font.weight: Font.Medium
        }
        RowLayout {
            spacing: 12
            PushButton {
                symbol: "key.fill"
                text: form.model.importText
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
                    text: form.model.loadedText
                    font.pixelSize: Theme.caption
                    color: Theme.good
                }
            }
        }
        FormNote { text: form.model.fileHint }
    }
    Flow {
        Layout.fillWidth: true
        spacing: 10
        PushButton {
            prominent: true
            text: form.model.saveText
            enabled: form.model.isComplete
            onClicked: form.model.save()
        }
        PushButton {
            text: form.model.testText
            spinning: form.model.isTesting
            enabled: form.model.isComplete && !form.model.isTesting
            onClicked: form.model.test()
        }
        PushButton {
            visible: form.model.canRemove
            destructive: true
            text: form.model.removeText
            onClicked: form.model.removeKey()
        }
    }
    FormNote {
        visible: text !== ""
        text: form.model.status
        color: form.model.statusIsError ? Theme.bad : Theme.secondary
    }
    FormNote {
        visible: text !== ""
        text: form.model.testResult
    }
    FileDialog {
        id: dialog
        title: form.model.importText
        fileMode: FileDialog.OpenFile
        currentFolder: form.model.fileFolder
        nameFilters: form.model.fileFilters
        onAccepted: form.model.importKey(selectedFile)
    }
}
