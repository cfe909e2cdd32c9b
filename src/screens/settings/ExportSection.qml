import QtQuick
import QtQuick.Dialogs
import QtQuick.Layouts
import Vantrell

FormSection {
    id: section

    required property ExportSettings model

    heading: qsTr("Export")

    FormRow {
        id: choice
        label: qsTr("Data")
        ChoiceBox {
            Layout.preferredWidth: 210
            name: choice.label
            model: section.model.kinds
            currentIndex: section.model.chosenKind
            onActivated: place => section.model.chooseKind(place)
        }
    }
    PushButton {
        id: exporter
        symbol: "square.and.arrow.up"
        text: qsTr("Export CSV…")
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
    FormNote {
        text: qsTr("Exports use the display currency for converted columns; the by-currency column is "
            + "exact. Days, months and years cover all apps together.")
    }
    FileDialog {
        id: dialog
        title: exporter.text
        fileMode: FileDialog.SaveFile
        acceptLabel: qsTr("Save")
        defaultSuffix: "csv"
        nameFilters: [qsTr("Comma-separated values (*.csv)")]
        onAccepted: section.model.save(selectedFile)
    }
}
