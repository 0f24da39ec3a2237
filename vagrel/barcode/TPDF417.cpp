// SPDX-License-Identifier: MIT
// PDF417 codewords from text, and their correction (ISO/IEC 15438).
#include <vagrel/barcode/Pdf417Tables_p.h>
#include <vagrel/barcode/Pdf417Text_p.h>
#include <vagrel/barcode/TPDF417.h>
#include <vagrel/foundation/Exceptions.h>

#include <algorithm>
#include <bit>

namespace vagrel {
namespace {

using namespace detail;

constexpr std::uint16_t Padding = LatchText; // one at the end of the data changes nothing
constexpr int Filler = 29;                   // a shift to Punctuation that nothing follows
constexpr int ValuesOfWord = 30;             // of the two that a word of text holds
constexpr std::size_t FewestDigits = 14;
constexpr std::size_t DigitsOfChunk = 44;

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

class TCompaction {
public:
    TCompaction(TCodeWords& words, std::string_view text) : fWords(words), fText(text) {}

    /// The words in use, 0 when the text is refused.
    int Write() {
        bool first = true;
        while (fAt < fText.size() && fValid) {
            if (IsNumeric()) {
                WriteNumericRun();
            } else {
                if (!first)
                    Push(LatchText);
                WriteTextRun();
            }
            first = false;
        }
        return fValid ? int(fUsed) : 0;
    }

private:
    void Push(int word) {
        fValid = fValid && word < int(Pdf417Prime) && fUsed < fWords.size();
        if (fValid)
            fWords[fUsed++] = std::uint16_t(word);
    }

    // A run of digits that is worth a change. The last character of the text does not count.
    bool IsNumeric() const {
        const auto run = fText.substr(fAt, FewestDigits);
        return fAt + FewestDigits < fText.size() && std::ranges::all_of(run, IsDigit);
    }

    void WriteNumericRun() {
        Push(LatchNumeric);
        const auto rest = fText.substr(fAt);
        const std::string_view run(rest.begin(), std::ranges::find_if_not(rest, IsDigit));
        fAt += run.size();
        for (std::size_t start = 0; start < run.size(); start += DigitsOfChunk) {
            for (const std::uint16_t word : TPDF417::NumToBase900("1" + std::string(run.substr(start, DigitsOfChunk))))
                Push(word);
        }
    }

    void WriteTextRun() {
        fSubMode = Alpha;
        fHalf = -1;
        do {
            const TTextToken token = ReadTextToken(fText.substr(fAt));
            fAt += std::size_t(token.Length);
            for (int i = 0; i < token.RawCount; ++i) {
                CloseHalf();
                Push(token.Raw[std::size_t(i)]);
            }
            if (token.Code.SubModes != 0)
                WriteCharacter(token.Code);
        } while (fAt < fText.size() && !IsNumeric());
        CloseHalf();
    }

    void WriteCharacter(TTextCode code) {
        if (!code.IsIn(fSubMode)) {
            const auto target = TSubMode(std::countr_zero(code.SubModes));
            const TSubModeChange& change = SubModeChanges[fSubMode][target];
            const bool returns = fAt == fText.size() || ReadTextToken(fText.substr(fAt)).Code.IsIn(fSubMode);
            if (change.Shift >= 0 && returns) {
                PushValue(change.Shift);
            } else {
                for (const char value : change.Latch)
                    PushValue(value);
                fSubMode = target;
            }
        }
        PushValue(code.Value);
    }

    void PushValue(int value) {
        if (fHalf < 0) {
            fHalf = value;
        } else {
            Push(fHalf * ValuesOfWord + value);
            fHalf = -1;
        }
    }

    void CloseHalf() {
        if (fHalf >= 0)
            PushValue(Filler);
    }

    TCodeWords& fWords;
    std::string_view fText;
    std::size_t fAt = 0;
    std::size_t fUsed = 1;
    bool fValid = true;
    TSubMode fSubMode = Alpha;
    int fHalf = -1; // the first value of a word that waits for its second
};

} // namespace

std::string TPDF417::GetValid(std::u16string_view code) {
    std::string valid;
    valid.reserve(code.size());
    for (const char16_t unit : code) {
        if (unit >= 32 && unit <= 126)
            valid += char(unit);
    }
    return valid;
}

bool TPDF417::Encode(TCodeWords& words, std::u16string_view code) {
    const std::string text = GetValid(code);
    const int used = text.empty() ? 0 : TCompaction(words, text).Write();
    fUsedCWords = std::max(used, 1);
    return used > 0;
}

int TPDF417::GetCorrecLevel(TKSLPdf417CorrectionLevel level) const {
    if (level >= Level0 && level <= Level8)
        return level;
    return fUsedCWords < 41 ? 2 : fUsedCWords < 161 ? 3 : fUsedCWords < 321 ? 4 : 5;
}

void TPDF417::AdjustSize(int& xCount, int& yCount, int numErrorCWords, int usedCWords, int cols, int rows) {
    constexpr int mostColumns = 30;
    constexpr int fewestRows = 3;
    constexpr int mostRows = 90;
    const auto room = [&] { return xCount * yCount - numErrorCWords; };
    xCount = cols > 0 ? cols : 1;
    yCount = rows > 0 ? rows : fewestRows;
    if (cols > 0 && rows > 0)
        return;
    if (cols > 0) {
        while (yCount <= mostRows && room() <= usedCWords)
            ++yCount;
    } else if (rows > 0) {
        while (xCount <= mostColumns && room() <= usedCWords)
            ++xCount;
    } else {
        while (room() < usedCWords && (yCount < mostRows || xCount < mostColumns)) {
            if (yCount < mostRows)
                ++yCount;
            if (xCount < mostColumns && room() < usedCWords)
                ++xCount;
        }
    }
}

void TPDF417::Complete(TCodeWords& words, int usedCWords, int numCodewords, int eccLen) {
    if (usedCWords < 1 || usedCWords > numCodewords || numCodewords > int(words.size()))
        throw EArgumentOutOfRangeException(u"Code words out of range");
    std::fill(words.begin() + usedCWords, words.begin() + numCodewords, Padding);
    words[0] = std::uint16_t(numCodewords);
    CalculateECC(words, numCodewords, eccLen);
}

void TPDF417::CalculateECC(TCodeWords& words, int numCodewords, int eccLen) {
    constexpr int most = 512;
    if (eccLen < 2 || eccLen > most || !std::has_single_bit(unsigned(eccLen)) || numCodewords < 0 ||
        numCodewords > int(words.size()) - eccLen)
        throw EArgumentOutOfRangeException(u"Correction words out of range");
    constexpr std::uint32_t prime = Pdf417Prime;
    const auto coefficients = Pdf417Coefficients(eccLen);
    const auto last = std::size_t(eccLen) - 1;
    // The highest first. Only the one on top is reduced: on its way up a register takes at most 512 products, which
    // fit.
    std::array<std::uint32_t, most + 1> registers{};
    for (std::size_t i = 0; i < std::size_t(numCodewords); ++i) {
        const std::uint32_t t = (registers[0] + words[i]) % prime;
        for (std::size_t j = 0; j <= last; ++j)
            registers[j] = registers[j + 1] + (prime - coefficients[j]) * t;
    }
    for (std::size_t j = 0; j <= last; ++j)
        words[std::size_t(numCodewords) + j] = std::uint16_t((prime - registers[j] % prime) % prime);
}

std::array<std::uint16_t, 5> TPDF417::BytesToBase900(std::span<const std::uint8_t, 6> bytes) {
    std::uint64_t number = 0;
    for (const std::uint8_t byte : bytes)
        number = number << 8 | byte;
    std::array<std::uint16_t, 5> words{};
    for (std::size_t i = words.size(); i-- > 0; number /= 900)
        words[i] = std::uint16_t(number % 900);
    return words;
}

std::vector<std::uint16_t> TPDF417::NumToBase900(std::string_view digits) {
    std::vector<std::uint16_t> words; // the least significant first
    for (const char digit : digits) {
        std::uint32_t carry = std::uint32_t(digit - '0');
        for (std::uint16_t& word : words) {
            carry += word * 10u;
            word = std::uint16_t(carry % 900);
            carry /= 900;
        }
        if (carry != 0)
            words.push_back(std::uint16_t(carry));
    }
    std::ranges::reverse(words);
    return words;
}

} // namespace vagrel
