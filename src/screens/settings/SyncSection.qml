import QtQuick
import QtQuick.Layouts
import Vantrell

FormSection {
    id: section

    required property SyncSettings model
    signal logPressed()

    heading: qsTr("Sync")

    SyncBannerRow {
        Layout.fillWidth: true
        banner: section.model.banner
    }
    FormNote {
        visible: text !== ""
        text: section.model.summary
    }
    RowLayout {
        spacing: 10
        PushButton {
            text: qsTr("Sync Now")
            symbol: "arrow.clockwise"
            onClicked: section.model.sync()
        }
        PushButton {
            text: qsTr("Full Backfill")
            onClicked: section.model.backfill()
        }
    }
    FormRow {
        id: oneDay
        label: qsTr("Re-fetch one day")
        DatePicker {
            showsTitle: false
            field: section.model.day
        }
        PushButton {
            text: qsTr("Fetch")
            enabled: section.model.canFetchDay
            Accessible.description: oneDay.label
            onClicked: section.model.fetchDay()
        }
    }
    QuestionBox { question: section.model.dayQuestion }
    FormRow {
        id: oneMonth
        label: qsTr("Re-fetch a month (2026-08)")
        TextEntry {
            Layout.preferredWidth: 130
            name: oneMonth.label
            text: section.model.month
            onTextEdited: section.model.month = text
            onAccepted: section.model.fetchMonth()
        }
        PushButton {
            text: qsTr("Fetch")
            enabled: section.model.canFetchMonth
            Accessible.description: oneMonth.label
            onClicked: section.model.fetchMonth()
        }
    }
    FormNote {
        visible: text !== ""
        text: section.model.monthProblem
        color: Theme.bad
        Accessible.role: Accessible.AlertMessage
    }
    QuestionBox { question: section.model.monthQuestion }
    NavigationRow {
        Layout.fillWidth: true
        text: qsTr("Sync Log")
        onClicked: section.logPressed()
    }
    FormNote {
        text: qsTr("Apple restates reports; re-fetching an already-held report replaces its rows and is "
            + "always safe.")
    }
}
