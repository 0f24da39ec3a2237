// SPDX-License-Identifier: MIT
// QR symbols from text: mode, version, bits and blocks (ISO/IEC 18004).
#include <vagrel/barcode/TEncoder.h>
#include <vagrel/barcode/TMatrixUtil.h>
#include <vagrel/barcode/TReedSolomonEncoder.h>
#include <vagrel/foundation/Text.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <span>

namespace vagrel {
namespace {

constexpr int LastVersion = 40;
constexpr int ModeIndicatorBits = 4;

bool IsDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

// The place in the set of 45 characters, npos for others.
constexpr std::u16string_view AlphanumericSet = u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ $%*+-./:";
static_assert(AlphanumericSet.size() == 45);
std::size_t AlphanumericCode(char16_t unit) { return AlphanumericSet.find(unit); }
bool IsAlphanumeric(char16_t unit) { return AlphanumericCode(unit) != AlphanumericSet.npos; }
bool IsLatin1(char16_t unit) { return unit < 256; }

int CountBits(TMode mode, int version) {
    const std::size_t group = version < 10 ? 0 : version < 27 ? 1 : 2;
    constexpr int numeric[] = {10, 12, 14};
    constexpr int alphanumeric[] = {9, 11, 13};
    constexpr int byte[] = {8, 16, 16};
    return (mode == qmNumeric ? numeric : mode == qmAlphanumeric ? alphanumeric : byte)[group];
}

int DataBits(TMode mode, int count) {
    switch (mode) {
    case qmNumeric:
        return count / 3 * 10 + count % 3 * 3 + (count % 3 != 0);
    case qmAlphanumeric:
        return count / 2 * 11 + count % 2 * 6;
    default:
        return count * 8;
    }
}

std::optional<TVersion> ChooseVersion(std::int64_t bits) {
    for (int number = 1; number <= LastVersion; ++number) {
        const TVersion version = TVersion::GetVersionForNumber(number);
        if (version.DataCodewords() >= (bits + 7) / 8)
            return version;
    }
    return std::nullopt;
}

// The width of the count field depends on the version, so the choice for the narrowest field is made once more.
std::optional<TVersion> ChooseVersion(TMode mode, std::size_t count) {
    constexpr std::size_t mostCharacters = 7089; // digits in version 40
    if (count > mostCharacters)
        return std::nullopt;
    const int bits = ModeIndicatorBits + DataBits(mode, int(count));
    const std::optional<TVersion> first = ChooseVersion(bits + CountBits(mode, 1));
    return first ? ChooseVersion(bits + CountBits(mode, first->VersionNumber)) : first;
}

std::string ToBytes(std::u16string_view text, std::int32_t encodeOptions) {
    std::string bytes;
    if (encodeOptions == ISO88591) {
        for (const char16_t unit : text)
            bytes += char(unit);
        return bytes;
    }
    if (encodeOptions == UTF8NoBOM)
        bytes = "\xEF\xBB\xBF";
    AppendUtf8(bytes, text);
    return bytes;
}

void AppendDigits(std::u16string_view text, TBitArray& bits) {
    for (; !text.empty(); text.remove_prefix(std::min<std::size_t>(3, text.size()))) {
        const auto group = text.substr(0, 3);
        std::uint32_t value = 0;
        for (const char16_t digit : group)
            value = value * 10 + (digit - u'0');
        bits.AppendBits(value, int(group.size()) * 3 + 1);
    }
}

void AppendAlphanumeric(std::u16string_view text, TBitArray& bits) {
    std::size_t i = 0;
    for (; i + 1 < text.size(); i += 2)
        bits.AppendBits(std::uint32_t(AlphanumericCode(text[i]) * 45 + AlphanumericCode(text[i + 1])), 11);
    if (i < text.size())
        bits.AppendBits(std::uint32_t(AlphanumericCode(text[i])), 6);
}

// Up to four zero bits and the rest of their byte, then pad bytes by turns.
void TerminateBits(int numDataBytes, TBitArray& bits) {
    bits.AppendBits(0, std::min(4, numDataBytes * 8 - bits.GetSize()));
    bits.AppendBits(0, bits.GetSizeInBytes() * 8 - bits.GetSize());
    for (std::uint32_t pad = 236; bits.GetSizeInBytes() < numDataBytes; pad ^= 236 ^ 17)
        bits.AppendBits(pad, 8);
}

// The i-th byte of each block in turn, data first.
std::vector<std::uint8_t> InterleaveWithECBytes(std::span<const std::uint8_t> data, const TVersion& version) {
    const TECBlocks& blocks = version.ECBlocks;
    const auto numBlocks = std::size_t(blocks.NumBlocks());
    const auto numECBytes = std::size_t(blocks.ECCodewordsPerBlock);
    const auto shortBlocks = std::size_t(blocks.ECBlocks[0].Count);
    const auto shortSize = std::size_t(blocks.ECBlocks[0].DataCodewords);
    const TReedSolomonEncoder encoder(QRCodeField, blocks.ECCodewordsPerBlock);
    std::vector<std::uint8_t> result(std::size_t(version.TotalCodewords));
    std::array<std::uint8_t, TReedSolomonEncoder::MaxDegree> correction{};
    const std::span ecBytes(correction.data(), numECBytes);
    std::size_t offset = 0;
    for (std::size_t block = 0; block < numBlocks; ++block) {
        const auto part = data.subspan(offset, shortSize + (block >= shortBlocks));
        offset += part.size();
        encoder.Encode(part, ecBytes);
        for (std::size_t i = 0; i < shortSize; ++i)
            result[i * numBlocks + block] = part[i];
        if (block >= shortBlocks)
            result[shortSize * numBlocks + block - shortBlocks] = part.back();
        for (std::size_t i = 0; i < numECBytes; ++i)
            result[data.size() + i * numBlocks + block] = ecBytes[i];
    }
    return result;
}

} // namespace

TMode TEncoder::ChooseMode(std::u16string_view content, std::int32_t& encodeOptions) {
    if (encodeOptions == Numeric)
        return qmNumeric;
    if (encodeOptions == Alphanumeric)
        return qmAlphanumeric;
    if (encodeOptions != Automatic)
        return qmByte;
    if (!content.empty() && std::ranges::all_of(content, IsDigit))
        return qmNumeric;
    if (!content.empty() && std::ranges::all_of(content, IsAlphanumeric))
        return qmAlphanumeric;
    encodeOptions = !content.empty() && std::ranges::all_of(content, IsLatin1) ? ISO88591 : UTF8NoBOM;
    return qmByte;
}

std::u16string TEncoder::FilterContent(std::u16string_view content, TMode mode, std::int32_t encodeOptions) {
    std::u16string text(content);
    if (mode == qmNumeric)
        std::erase_if(text, std::not_fn(IsDigit));
    else if (mode == qmAlphanumeric)
        std::erase_if(text, std::not_fn(IsAlphanumeric));
    else if (encodeOptions == ISO88591)
        std::erase_if(text, std::not_fn(IsLatin1));
    return text;
}

bool TEncoder::AppendKanjiBytes(std::string_view shiftJis, TBitArray& bits) {
    for (std::size_t i = 0; i < shiftJis.size(); i += 2) {
        if (i + 1 == shiftJis.size())
            return false;
        const int code = std::uint8_t(shiftJis[i]) << 8 | std::uint8_t(shiftJis[i + 1]);
        const bool low = code >= 0x8140 && code <= 0x9FFC;
        if (!low && (code < 0xE040 || code > 0xEBBF))
            return false;
        const int fromStart = code - (low ? 0x8140 : 0xC140);
        bits.AppendBits(std::uint32_t((fromStart >> 8) * 0xC0 + (fromStart & 0xFF)), 13);
    }
    return true;
}

void TEncoder::Encode(std::u16string_view content, std::int32_t encodeOptions, TErrorCorrectionLevel ecLevel,
                      TQRCode& qrCode) {
    const TMode mode = ChooseMode(content, encodeOptions);
    const std::u16string text = FilterContent(content, mode, encodeOptions);
    const std::string bytes = mode == qmByte ? ToBytes(text, encodeOptions) : std::string();
    const std::size_t count = mode == qmByte ? bytes.size() : text.size();
    const std::optional<TVersion> version = ChooseVersion(mode, count);
    fEncoderError = qrCode.FQRCodeError = !version;
    if (!version)
        return;

    TBitArray bits;
    bits.AppendBits(std::uint32_t(mode), ModeIndicatorBits);
    bits.AppendBits(std::uint32_t(count), CountBits(mode, version->VersionNumber));
    if (mode == qmNumeric)
        AppendDigits(text, bits);
    else if (mode == qmAlphanumeric)
        AppendAlphanumeric(text, bits);
    for (const char byte : bytes)
        bits.AppendBits(std::uint8_t(byte), 8);
    TerminateBits(version->DataCodewords(), bits);

    qrCode.FMode = mode;
    qrCode.FECLevel = ecLevel;
    qrCode.FVersion = version->VersionNumber;
    qrCode.FMatrixWidth = version->Dimension;
    qrCode.FNumTotalBytes = version->TotalCodewords;
    qrCode.FNumDataBytes = version->DataCodewords();
    qrCode.FNumECBytes = version->ECBlocks.TotalECCodewords();
    qrCode.FNumRSBlocks = version->ECBlocks.NumBlocks();
    qrCode.FMaskPattern = -1;
    qrCode.FMatrix = TMatrixUtil::BuildMatrix(InterleaveWithECBytes(bits.ToBytes(), *version), ecLevel, *version,
                                              qrCode.FMaskPattern);
}

} // namespace vagrel
