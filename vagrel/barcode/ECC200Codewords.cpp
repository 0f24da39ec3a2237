// SPDX-License-Identifier: MIT
// Encodation of Data Matrix: ASCII, and Base 256 where the look-ahead asks for it.
#include <vagrel/barcode/ECC200.h>
#include <vagrel/foundation/Exceptions.h>

#include <algorithm>

namespace vagrel {
namespace {

constexpr std::uint8_t LatchBase256 = 231;
constexpr std::uint8_t UpperShift = 235;
constexpr std::size_t LongestBase256 = 1555;
constexpr bool IsDigit(int byte) { return byte >= '0' && byte <= '9'; }

enum TScheme { ASCII, C40, Text, X12, EDIFACT, Base256, SchemeCount };
// Costs are counted in twelfths of a codeword, which makes all of them whole.
constexpr int Codeword = 12;
using TCosts = std::array<int, SchemeCount>;

// What one byte adds to each cost.
constexpr std::array<std::array<std::uint8_t, SchemeCount>, 256> MakeByteCosts() {
    std::array<std::array<std::uint8_t, SchemeCount>, 256> table{};
    for (int c = 0; c < 256; ++c) {
        const bool high = c > 127;
        const bool digit = IsDigit(c);
        const bool upper = c >= 'A' && c <= 'Z';
        const bool lower = c >= 'a' && c <= 'z';
        const bool spaceOrDigit = c == ' ' || digit;
        auto cost = [&](bool inSet, int in, int above, int otherwise) {
            return std::uint8_t(inSet ? in : high ? above : otherwise);
        };
        table[std::size_t(c)] = {cost(digit, 6, 24, 12),
                                 cost(spaceOrDigit || upper, 8, 32, 16),
                                 cost(spaceOrDigit || lower, 8, 32, 16),
                                 cost(spaceOrDigit || upper || c == '\r' || c == '*' || c == '>', 8, 52, 40),
                                 cost(c >= 32 && c <= 94, 9, 51, 39),
                                 Codeword};
    }
    return table;
}
constexpr auto ByteCosts = MakeByteCosts();

// Whether the other costs, all but that of `scheme`, are each at least `least`.
bool OthersAtLeast(const TCosts& costs, int scheme, int least) {
    for (int other = 0; other < SchemeCount; ++other) {
        if (other != scheme && costs[std::size_t(other)] < least)
            return false;
    }
    return true;
}

// The look-ahead: whether `rest` is best begun in Base 256. All its other answers are taken as ASCII.
bool AsksForBase256(std::span<const std::uint8_t> rest, bool inBase256) {
    constexpr TCosts fromASCII = {0, 12, 12, 12, 12, 15};
    constexpr TCosts fromBase256 = {12, 24, 24, 24, 24, 0};
    constexpr std::size_t undecided = 4;
    TCosts costs = inBase256 ? fromBase256 : fromASCII;
    for (std::size_t i = 0; i < rest.size(); ++i) {
        for (std::size_t scheme = 0; scheme < SchemeCount; ++scheme)
            costs[scheme] += ByteCosts[rest[i]][scheme];
        if (i < undecided)
            continue;
        if (OthersAtLeast(costs, ASCII, costs[ASCII] + Codeword))
            return false;
        if (costs[ASCII] >= costs[Base256] + Codeword ||
            *std::min_element(&costs[C40], &costs[Base256]) >= costs[Base256])
            return true;
        for (const int scheme : {EDIFACT, Text, X12, C40}) {
            if (OthersAtLeast(costs, scheme, costs[std::size_t(scheme)] + Codeword + 1))
                return false;
        }
    }
    for (int& cost : costs)
        cost = (cost + Codeword - 1) / Codeword;
    return !OthersAtLeast(costs, ASCII, costs[ASCII]) && OthersAtLeast(costs, Base256, costs[Base256] + 1);
}

class TCodewords {
public:
    explicit TCodewords(std::span<const std::uint8_t> data) : fData(data) {
        while (fEnd > 0 && fData[fEnd - 1] < 128)
            --fEnd;
    }

    std::vector<std::uint8_t> Make(std::size_t limit) {
        while (fAt < fData.size() && fWords.size() <= limit) {
            // Bytes below 128 alone never lead into Base 256, so the look-ahead is spared behind the last other one.
            if (const auto rest = fData.subspan(fAt); rest.size() > 1 && IsDigit(rest[0]) && IsDigit(rest[1])) {
                fWords.push_back(std::uint8_t(130 + (rest[0] - '0') * 10 + rest[1] - '0'));
                fAt += 2;
            } else if (fAt < fEnd && AsksForBase256(rest, false)) {
                WriteBase256();
            } else {
                if (rest[0] > 127)
                    fWords.push_back(UpperShift);
                fWords.push_back(std::uint8_t(rest[0] % 128 + 1));
                ++fAt;
            }
        }
        return std::move(fWords);
    }

private:
    void WriteBase256() {
        const std::size_t start = fAt;
        while (fAt < fData.size() && fAt - start <= LongestBase256 && AsksForBase256(fData.subspan(fAt), true))
            ++fAt;
        const std::size_t length = fAt - start;
        if (length > LongestBase256)
            throw EOutOfRange(u"Base256_Encode Error");
        fWords.push_back(LatchBase256);
        if (length < 250) {
            PushRandomised(length);
        } else {
            PushRandomised(length / 250 + 249);
            PushRandomised(length % 250);
        }
        for (const std::uint8_t byte : fData.subspan(start, length))
            PushRandomised(byte);
    }

    // The 255-state randomising, by the position of the codeword from 1.
    void PushRandomised(std::size_t value) {
        const std::size_t position = fWords.size() + 1;
        fWords.push_back(std::uint8_t(value + 149 * position % 255 + 1));
    }

    std::span<const std::uint8_t> fData;
    std::size_t fEnd = fData.size(); // behind the last byte above 127
    std::size_t fAt = 0;
    std::vector<std::uint8_t> fWords;
};

} // namespace

std::vector<std::uint8_t> MakeECC200Codewords(std::span<const std::uint8_t> data, std::size_t limit) {
    // A codeword holds two digits at the most: what lies behind so many bytes does not change that they do not fit.
    return TCodewords(data.first(std::min(data.size(), 2 * limit + 1))).Make(limit);
}

} // namespace vagrel
