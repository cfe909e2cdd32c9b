import QtQuick
import QtQuick.Layouts
import Vantrell

FormSection {
    id: section

    required property DisplaySettings model

    heading: qsTr("Display")

    FormRow {
        id: currency
        label: qsTr("Display currency")
        ChoiceBox {
            Layout.preferredWidth: 120
            name: currency.label
            model: section.model.currencies
            currentIndex: section.model.chosenCurrency
            onActivated: place => section.model.chooseCurrency(place)
        }
    }
    FormRow {
        label: qsTr("Exchange rates")
        PlainText {
            text: section.model.ratesAge
            color: Theme.secondary
        }
        PushButton {
            text: qsTr("Refresh")
            onClicked: section.model.refreshRates()
        }
    }
    FormNote { text: section.model.caption }
}
