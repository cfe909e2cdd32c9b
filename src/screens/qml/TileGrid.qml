import QtQuick
import Vantrell

// Cards of headline figures, as many beside each other as fit.
Grid {
    id: grid

    required property RowList tiles
    readonly property int fitting: Math.max(1, Math.floor((width + spacing) / (168 + spacing)))

    columns: Math.max(1, Math.min(fitting, tiles.count))
    spacing: 12

    Repeater {
        model: grid.tiles
        Card {
            id: tile
            required property statTile row
            width: Math.min(280, (grid.width - (grid.columns - 1) * grid.spacing) / grid.columns)
            height: 66 + 28
            Column {
                anchors.fill: parent
                anchors.margins: 14
                spacing: 3
                DataText {
                    width: parent.width
                    text: tile.row.title
                    font.pixelSize: Theme.caption
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: 10
                    font.weight: Font.Medium
                    color: Theme.secondary
                }
                LoneFigure {
                    anchors.left: parent.left
                    width: Math.min(parent.width, implicitWidth)
                    money: tile.row.money
                    horizontalAlignment: Text.AlignLeft
                    font.pixelSize: Theme.title2
                    font.weight: Font.DemiBold
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: Theme.title2 * 0.7
                }
                DataText {
                    width: parent.width
                    text: tile.row.subtitle
                    font.pixelSize: Theme.smallest
                    color: Theme.tertiary
                }
            }
        }
    }
}
