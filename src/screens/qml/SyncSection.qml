import QtQuick
import QtQuick.Layouts
import Vantrell

FormSection {
    id: section

    required property SyncSettings model
    signal logPressed()

    heading: model.title

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
            text: section.model.syncText
            symbol: "arrow.clockwise"
            onClicked: section.model.sync()
        }
        PushButton {
            text: section.model.backfillText
            onClicked: section.model.backfill()
        }
    }
    FormRow {
        label: section.model.dayLabel
        DatePicker {
            showsTitle: false
            field: section.model.day
        }
        PushButton {
            text: section.model.fetchText
            enabled: section.model.canFetchDay
            Accessible.description: section.model.dayLabel
            onClicked: section.model.fetchDay()
        }
    }
    FormRow {
        label: section.model.monthLabel
        TextEntry {
            Layout.preferredWidth: 130
            name: section.model.monthLabel
            text: section.model.month
            onTextEdited: section.model.month = text
            onAccepted: section.model.fetchMonth()
        }
        PushButton {
            text: section.model.fetchText
            enabled: section.model.canFetchMonth
            Accessible.description: section.model.monthLabel
            onClicked: section.model.fetchMonth()
        }
    }
    NavigationRow {
        Layout.fillWidth: true
        text: section.model.logText
        onClicked: section.logPressed()
    }
    FormNote { text: section.model.caption }
}
