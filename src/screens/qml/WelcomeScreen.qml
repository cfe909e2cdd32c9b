import QtQuick
import QtQuick.Layouts
import Vantrell

// What a first-time user sees: what this is, how to make a key, and where to enter it.
ScreenScroll {
    id: screen

    required property WelcomeView model

    maximumWidth: 540
    centered: true

    ColumnLayout {
        width: parent.width
        spacing: 18

        Item { implicitHeight: 12 }
        SymbolItem {
            Layout.alignment: Qt.AlignHCenter
            Layout.preferredWidth: 64
            Layout.preferredHeight: 64
            name: screen.model.symbol
            color: Theme.accent
        }
        PlainText {
            Layout.alignment: Qt.AlignHCenter
            Layout.topMargin: -8
            text: screen.model.name
            font.pixelSize: Theme.largeTitle
            font.weight: Font.Bold
            Accessible.role: Accessible.Heading
        }
        PlainText {
            Layout.fillWidth: true
            Layout.bottomMargin: 6
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            lineHeight: 1.2
            text: screen.model.introduction
            color: Theme.secondary
        }
        ErrorBox {
            Layout.fillWidth: true
            message: screen.model.problem
        }
        WelcomeCard {
            spacing: 12
            Repeater {
                model: screen.model.steps
                WelcomeStepRow { Layout.fillWidth: true }
            }
            LinkText {
                Layout.leftMargin: 32
                text: screen.model.linkText
                address: screen.model.linkAddress
            }
        }
        WelcomeCard {
            spacing: 10
            PlainText {
                text: screen.model.connectTitle
                font.pixelSize: Theme.headline
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }
            CredentialsForm {
                Layout.fillWidth: true
                model: screen.model.credentials
            }
        }
        FormNote {
            horizontalAlignment: Text.AlignHCenter
            text: screen.model.footnote
            color: Theme.tertiary
        }
    }
}
