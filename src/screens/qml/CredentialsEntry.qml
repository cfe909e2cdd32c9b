import QtQuick
import QtQuick.Layouts
import Vantrell

// One text of the credentials with its label and where it is found.
ColumnLayout {
    id: entry

    required property credentialsField field
    required property string value
    signal edited(string text)

    Layout.fillWidth: true
    spacing: 4

    PlainText {
        spoken: false
        text: entry.field.label
        font.pixelSize: Theme.callout
        font.weight: Font.Medium
    }
    TextEntry {
        Layout.fillWidth: true
        name: entry.field.label
        prompt: entry.field.prompt
        text: entry.value
        onTextEdited: entry.edited(text)
    }
    FormNote { text: entry.field.hint }
}
