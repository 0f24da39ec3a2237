// SPDX-License-Identifier: MIT
// Placement of codewords in the mapping matrix of Data Matrix: diagonal sweeps up and down, with four special corners.
#include <vagrel/barcode/ECC200.h>

namespace vagrel {
namespace {

// Row and column of each bit of a codeword, the most significant first.
using TShape = std::array<std::array<int, 2>, 8>;

// About the place of its last bit.
constexpr TShape Utah = {{{-2, -2}, {-2, -1}, {-1, -2}, {-1, -1}, {-1, 0}, {0, -2}, {0, -1}, {0, 0}}};
// Negative places count from behind the last row or column.
constexpr TShape Corners[] = {
    {{{-1, 0}, {-1, 1}, {-1, 2}, {0, -2}, {0, -1}, {1, -1}, {2, -1}, {3, -1}}},
    {{{-3, 0}, {-2, 0}, {-1, 0}, {0, -4}, {0, -3}, {0, -2}, {0, -1}, {1, -1}}},
    {{{-3, 0}, {-2, 0}, {-1, 0}, {0, -2}, {0, -1}, {1, -1}, {2, -1}, {3, -1}}},
    {{{-1, 0}, {-1, -1}, {0, -3}, {0, -2}, {0, -1}, {1, -3}, {1, -2}, {1, -1}}},
};

class TPlacement {
public:
    TPlacement(std::span<const std::uint8_t> codewords, int rows, int columns)
        : fCodewords(codewords), fRows(rows), fColumns(columns), fCells(std::size_t(rows * columns), Free) {}

    std::vector<std::uint8_t> Place() {
        int row = 4;
        int column = 0;
        while (row < fRows || column < fColumns) {
            PlaceCorner(row, column);
            for (; row >= 0 && column < fColumns; row -= 2, column += 2)
                PlaceUtah(row, column);
            row += 1;
            column += 3;
            for (; row < fRows && column >= 0; row += 2, column -= 2)
                PlaceUtah(row, column);
            row += 3;
            column += 1;
        }
        // Some sizes leave a square in the lower right corner, of which the diagonal is dark.
        if (Cell(fRows - 1, fColumns - 1) == Free) {
            Cell(fRows - 1, fColumns - 1) = Cell(fRows - 2, fColumns - 2) = 1;
            Cell(fRows - 1, fColumns - 2) = Cell(fRows - 2, fColumns - 1) = 0;
        }
        return std::move(fCells);
    }

private:
    static constexpr std::uint8_t Free = 2;

    std::uint8_t& Cell(int row, int column) { return fCells[std::size_t(row * fColumns + column)]; }

    void PlaceCorner(int row, int column) {
        const bool aboveEnd = row == fRows - 2 && column == 0;
        if (row == fRows && column == 0)
            PlaceAt(Corners[0]);
        else if (aboveEnd && fColumns % 8 == 4)
            PlaceAt(Corners[2]);
        else if (aboveEnd && fColumns % 4 != 0)
            PlaceAt(Corners[1]);
        else if (row == fRows + 4 && column == 2 && fColumns % 8 == 0)
            PlaceAt(Corners[3]);
    }

    void PlaceAt(const TShape& corner) {
        for (int bit = 0; bit < 8; ++bit) {
            const auto [row, column] = corner[std::size_t(bit)];
            Cell(row < 0 ? row + fRows : row, column < 0 ? column + fColumns : column) = Bit(bit);
        }
        ++fNext;
    }

    // What juts out over the top or the left comes in at the other side, shifted.
    void PlaceUtah(int row, int column) {
        if (row < 0 || row >= fRows || column < 0 || column >= fColumns || Cell(row, column) != Free)
            return;
        for (int bit = 0; bit < 8; ++bit) {
            int y = row + Utah[std::size_t(bit)][0];
            int x = column + Utah[std::size_t(bit)][1];
            if (y < 0) {
                y += fRows;
                x += 4 - (fRows + 4) % 8;
            }
            if (x < 0) {
                x += fColumns;
                y += 4 - (fColumns + 4) % 8;
            }
            Cell(y, x) = Bit(bit);
        }
        ++fNext;
    }

    std::uint8_t Bit(int bit) const { return fCodewords[fNext] >> (7 - bit) & 1; }

    std::span<const std::uint8_t> fCodewords;
    int fRows;
    int fColumns;
    std::vector<std::uint8_t> fCells;
    std::size_t fNext = 0;
};

} // namespace

std::vector<std::uint8_t> PlaceECC200(std::span<const std::uint8_t> codewords, int rows, int columns) {
    return TPlacement(codewords, rows, columns).Place();
}

} // namespace vagrel
