#include "rules/CellGrid.h"

namespace vorlane {

CellGrid gridOfCells(int imageWidth, int imageHeight, int cellWidth, int cellHeight)
{
    CellGrid grid;
    if (imageWidth <= 0 || imageHeight <= 0)
        return grid;
    grid.cellWidth = cellWidth > 0 ? cellWidth : imageWidth;
    grid.cellHeight = cellHeight > 0 ? cellHeight : imageHeight;
    grid.columns = imageWidth / grid.cellWidth;
    grid.rows = imageHeight / grid.cellHeight;
    return grid;
}

CellGrid
templateGrid(int imageWidth, int imageHeight, int rows, int columns, int cellWidth, int cellHeight)
{
    if (rows > 0 && columns > 0) {
        if (imageWidth < columns || imageHeight < rows)
            return CellGrid{};
        return gridOfCells(imageWidth, imageHeight, imageWidth / columns, imageHeight / rows);
    }
    return gridOfCells(imageWidth, imageHeight, cellWidth, cellHeight);
}

std::optional<CellRect> cellRect(const CellGrid &grid, int cell)
{
    if (cell < FirstCell || cell > grid.count() || grid.cellWidth <= 0 || grid.cellHeight <= 0)
        return std::nullopt;
    const int index = cell - FirstCell;
    return CellRect{(index % grid.columns) * grid.cellWidth,
                    (index / grid.columns) * grid.cellHeight,
                    grid.cellWidth,
                    grid.cellHeight};
}

} // namespace vorlane
