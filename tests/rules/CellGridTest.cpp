#include "rules/CellGrid.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

TEST(CellGrid, CutsThePictureIntoWholeCells)
{
    EXPECT_EQ(gridOfCells(128, 64, 32, 32), (CellGrid{32, 32, 4, 2}));
    // The part cells at the right and bottom edges belong to none.
    EXPECT_EQ(gridOfCells(100, 70, 32, 32), (CellGrid{32, 32, 3, 2}));
}

TEST(CellGrid, NoCellSizeTakesTheWholeSide)
{
    EXPECT_EQ(gridOfCells(128, 64, 0, 0), (CellGrid{128, 64, 1, 1}));
    EXPECT_EQ(gridOfCells(128, 64, 32, -5), (CellGrid{32, 64, 4, 1}));
}

TEST(CellGrid, CellLargerThanThePictureGivesNoCell)
{
    EXPECT_EQ(gridOfCells(16, 16, 32, 32).count(), 0);
    EXPECT_EQ(cellRect(gridOfCells(16, 16, 32, 32), 1), std::nullopt);
    EXPECT_EQ(gridOfCells(0, 0, 32, 32).count(), 0);
}

TEST(CellGrid, CellsAreNumberedFromOneRowByRow)
{
    const CellGrid grid = gridOfCells(128, 64, 32, 32);
    EXPECT_EQ(cellRect(grid, 1), (CellRect{0, 0, 32, 32}));
    EXPECT_EQ(cellRect(grid, 4), (CellRect{96, 0, 32, 32}));
    EXPECT_EQ(cellRect(grid, 5), (CellRect{0, 32, 32, 32}));
    EXPECT_EQ(cellRect(grid, 8), (CellRect{96, 32, 32, 32}));
    EXPECT_EQ(cellRect(grid, 0), std::nullopt);
    EXPECT_EQ(cellRect(grid, -1), std::nullopt);
    EXPECT_EQ(cellRect(grid, 9), std::nullopt);
}

TEST(CellGrid, TemplateRowsAndColumnsCutTheButtonSheet)
{
    EXPECT_EQ(templateGrid(128, 64, 2, 2, 32, 32), (CellGrid{64, 32, 2, 2}));
    EXPECT_EQ(cellRect(templateGrid(128, 64, 2, 2, 32, 32), 3), (CellRect{0, 32, 64, 32}));
}

TEST(CellGrid, TemplateWithoutRowsOrColumnsUsesTheImageCells)
{
    EXPECT_EQ(templateGrid(128, 64, 0, 2, 32, 32), (CellGrid{32, 32, 4, 2}));
    EXPECT_EQ(templateGrid(128, 64, 2, 0, 0, 0), (CellGrid{128, 64, 1, 1}));
}

TEST(CellGrid, MoreColumnsThanPixelsGivesNoCell)
{
    EXPECT_EQ(templateGrid(4, 4, 1, 8, 0, 0).count(), 0);
}

} // namespace
} // namespace vorlane
