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
            name: "chart.line.uptrend.xyaxis.circle.fill"
            color: Theme.accent
        }
        PlainText {
            Layout.alignment: Qt.AlignHCenter
            Layout.topMargin: -8
            text: "Vantrell"
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
            text: qsTr("Your App Store earnings by app, day, month and year — plus what Apple actually "
                + "paid. Fetched straight from Apple, stored only on your devices.")
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
                text: qsTr("Open App Store Connect…")
                address: screen.model.linkAddress
            }
        }
        WelcomeCard {
            spacing: 10
            PlainText {
                text: qsTr("Connect")
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
            text: qsTr("The first sync fetches about a year of daily reports plus yearly, monthly and "
                + "finance reports — roughly six minutes. The dashboard fills in as days land.")
            color: Theme.tertiary
        }
    }
}
