// SPDX-License-Identifier: MIT
// Kinds that no decoder at hand reads: bars and check digits beside those of zint.
#include "Raster.h"

#include <gtest/gtest.h>
#include <zint.h>

#include <algorithm>
#include <memory>
#include <numeric>
#include <vector>

namespace vagrel {
namespace {

/// Rows of zint's symbol from the top, '#' for dark.
std::vector<std::string> ZintRows(const std::string& text, int symbology, int option) {
    const std::unique_ptr<zint_symbol, void (*)(zint_symbol*)> symbol(ZBarcode_Create(), ZBarcode_Delete);
    symbol->symbology = symbology;
    symbol->option_2 = option;
    const int error = ZBarcode_Encode(symbol.get(), reinterpret_cast<const unsigned char*>(text.c_str()), 0);
    EXPECT_LT(error, ZINT_ERROR) << symbol->errtxt;
    std::vector<std::string> rows(static_cast<std::size_t>(symbol->rows));
    for (std::size_t y = 0; y < rows.size(); ++y)
        for (int x = 0; x < symbol->width; ++x)
            rows[y] += symbol->encoded_data[y][x >> 3] >> (x & 7) & 1 ? '#' : '.';
    return rows;
}

std::string Trimmed(std::string row) { return row.substr(0, row.find_last_not_of('.') + 1); }

class TBarcodeTwins : public testing::Test {
protected:
    template <class Compare>
    void Sweep(std::string_view alphabet, std::size_t longest, Compare compare) {
        for (int i = 0; i < 200; ++i) {
            const std::string text = RandomText(fRandom, alphabet, 1, longest);
            SCOPED_TRACE(text);
            compare(text);
        }
    }
    TRandom fRandom{2024};
};

TEST_F(TBarcodeTwins, Code11) {
    Sweep("0123456789-", 25, [](const std::string& text) {
        std::string pattern = TEncoded(text, btCODE11, true).pattern;
        for (std::size_t gap = 5; gap < pattern.size(); gap += 6) { // zint parts characters by a narrow space
            EXPECT_EQ(pattern[gap], '6');
            pattern[gap] = '1';
        }
        EXPECT_EQ(Paint(pattern, 1, 2), ZintRows(text, BARCODE_CODE11, text.size() < 10 ? 1 : 0)[0]);
    });
}

TEST_F(TBarcodeTwins, MsiAtFactor1) {
    Sweep("0123456789", 18, [](const std::string& text) {
        EXPECT_EQ(Paint(TEncoded(text, btMSI, true).pattern, 1, 1), ZintRows(text, BARCODE_MSI_PLESSEY, 1)[0]);
        EXPECT_EQ(Paint(TEncoded(text, btMSI, false).pattern, 1, 1), ZintRows(text, BARCODE_MSI_PLESSEY, 0)[0]);
    });
}

TEST_F(TBarcodeTwins, TwoOfFive) {
    Sweep("0123456789", 20, [](const std::string& text) {
        EXPECT_EQ(Trimmed(Paint(TEncoded(text, btINDUS_25, true).pattern, 1, 3)), ZintRows(text, BARCODE_C25IND, 1)[0]);
        // The ends of the matrix form differ: bars of 3/2 modules here, of 4 there.
        std::string pattern = TEncoded(text, btMATRIX_25, true).pattern;
        ASSERT_EQ(pattern.substr(0, 6), "F1N1N1");
        ASSERT_EQ(pattern.substr(pattern.size() - 5), "F1N1N");
        pattern.front() = pattern[pattern.size() - 5] = 'W';
        EXPECT_EQ(Paint(pattern, 1, 3), ZintRows(text, BARCODE_C25STANDARD, 1)[0]);
    });
}

TEST_F(TBarcodeTwins, PostnetAtFactor1) {
    Sweep("0123456789", 11, [](const std::string& text) {
        const int sum = std::accumulate(text.begin(), text.end(), 0, [](int s, char c) { return s + c - '0'; });
        const std::string whole = text + static_cast<char>('0' + (10 - sum % 10) % 10); // zint adds the check digit
        std::string tall = Paint(TEncoded(whole, btPOSTNET, true).pattern, 1, 1), all = tall;
        std::ranges::replace(tall, 'a', '.');
        std::ranges::replace(all, 'a', '#');
        const std::vector<std::string> rows = ZintRows(text, BARCODE_POSTNET, 0);
        ASSERT_EQ(rows.size(), 2U);
        EXPECT_EQ(Trimmed(tall), Trimmed(rows[0]));
        EXPECT_EQ(all, Trimmed(rows[1]));
    });
}

} // namespace
} // namespace vagrel
