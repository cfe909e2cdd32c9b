import QtQuick
import QtQuick.Dialogs
import QtQuick.Layouts
import Vantrell

FormSection {
    id: section

    required property ExportSettings model

    heading: model.title

    FormRow {
        label: section.model.kindLabel
        ChoiceBox {
            Layout.preferredWidth: 210
            name: section.model.kindLabel
            model: section.model.kinds
            currentIndex: section.model.chosenKind
            onActivated: place => section.model.chooseKind(place)
        }
    }
    PushButton {
        symbol: "square.and.arrow.up"
        text: section.model.exportText
        enabled: section.model.canExport
        Accessible.description: section.model.problem
        onClicked: {
            dialog.selectedFile = section.model.prepare()
            dialog.open()
        }
    }
    FormNote {
        visible: text !== ""
        text: section.model.problem
        color: Theme.bad
    }
    FormNote { text: section.model.caption }
    FileDialog {
        id: dialog
        title: section.model.exportText
        fileMode: FileDialog.SaveFile
        acceptLabel: section.model.saveText
        defaultSuffix: section.model.fileSuffix
        nameFilters: section.model.fileFilters
        onAccepted: section.model.save(selectedFile)
    }
}
