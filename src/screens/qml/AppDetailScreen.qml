import QtQuick
import Vantrell

BlockView {
    id: screen

    required property AppDetailView detail

    focus: true
    rows: screen.detail.rows
    Accessible.name: screen.detail.title
    delegate: BlockRowView {
        id: entry
        special: entry.kind === RowKind.Tiles ? tiles : country

        Component {
            id: tiles
            TileGrid { tiles: screen.detail.tiles }
        }
        Component {
            id: country
            CountryLine {
                row: entry.row
                tabStop: entry.isStop
                focus: true
            }
        }
    }
}
