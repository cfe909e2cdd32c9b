import QtQuick
import QtQuick.Layouts
import Vantrell

FormSection {
    id: section

    required property DisplaySettings model

    heading: model.title

    FormRow {
        label: section.model.currencyLabel
        ChoiceBox {
            Layout.preferredWidth: 120
            name: section.model.currencyLabel
            model: section.model.currencies
            currentIndex: section.model.chosenCurrency
            onActivated: place => section.model.chooseCurrency(place)
        }
    }
    FormRow {
        label: section.model.ratesLabel
        PlainText {
            text: section.model.ratesAge
            color: Theme.secondary
        }
        PushButton {
            text: section.model.refreshText
            onClicked: section.model.refreshRates()
        }
    }
    FormNote { text: section.model.caption }
}
