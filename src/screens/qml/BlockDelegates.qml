import QtQuick
import Qt.labs.qmlmodels
import Vantrell

// How the rows of a block are shown, by their kind. A screen adds the kinds that only it has.
DelegateChooser {
    role: "kind"

    DelegateChoice {
        roleValue: RowKind.Heading
        BlockRowView {
            id: heading
            DataText {
                width: heading.contentWidth
                bottomPadding: 6
                text: heading.row
                font.pixelSize: Theme.headline
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }
        }
    }
    DelegateChoice {
        roleValue: RowKind.Note
        BlockRowView {
            id: note
            PlainText {
                width: note.contentWidth
                topPadding: 10
                wrapMode: Text.Wrap
                text: note.row
                font.pixelSize: Theme.smallest
                color: Theme.tertiary
            }
        }
    }
    DelegateChoice {
        roleValue: RowKind.Absence
        BlockRowView {
            id: absence
            PlainText {
                width: absence.contentWidth
                wrapMode: Text.Wrap
                text: absence.row
                font.pixelSize: Theme.callout
                color: Theme.secondary
            }
        }
    }
    DelegateChoice {
        roleValue: RowKind.Period
        BlockRowView {
            id: period
            PeriodRow {
                width: period.contentWidth
                row: period.row
                tabStop: period.isStop
                focus: true
            }
        }
    }
    DelegateChoice {
        roleValue: RowKind.Product
        BlockRowView {
            id: product
            ProductRow {
                width: product.contentWidth
                row: product.row
                tabStop: product.isStop
                focus: true
            }
        }
    }
}
