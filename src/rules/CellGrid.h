#pragma once

#include <optional>

namespace vorlane {

// Cells are numbered from 1, left to right along the top row, then row by row: cell 1 is the
// top-left cell, which is the up cell of a new button. Cell 0 and negative numbers name none.
inline constexpr int FirstCell = 1;

struct CellRect
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool operator==(const CellRect &) const = default;
};

// How a picture is cut into cells: whole cells only, a part cell at the right or bottom edge
// belongs to none.
struct CellGrid
{
    int cellWidth = 0;
    int cellHeight = 0;
    int columns = 0;
    int rows = 0;

    int count() const { return columns * rows; }
    bool operator==(const CellGrid &) const = default;
};

// A picture of imageWidth x imageHeight cut into cells of cellWidth x cellHeight; a cell size
// of 0 or less along a side takes the picture's whole side.
CellGrid gridOfCells(int imageWidth, int imageHeight, int cellWidth, int cellHeight);

// A button's template: cut into `rows` x `columns` when both are above 0, else into the
// template image's own cells.
CellGrid
templateGrid(int imageWidth, int imageHeight, int rows, int columns, int cellWidth, int cellHeight);

// Where cell `cell` lies in the picture; none when the grid has no such cell.
std::optional<CellRect> cellRect(const CellGrid &grid, int cell);

} // namespace vorlane
