// SPDX-License-Identifier: MIT
// Families made concrete for tests: nothing is painted, texts have a fixed size.
#pragma once

#include <host/ItemTable.h>
#include <host/TextMeasurer.h>
#include <vagrel/barcode/TVGRBaseBarcode.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/items/text/TVGRBaseText.h>

#include <algorithm>

namespace vagrel::test {

/// Every code unit is 0.6 em wide; ascent 0.8 em, descent 0.2 em.
class FixedTextMeasurer final : public TextMeasurer {
public:
    TTextSize Measure(std::u16string_view text, const TFontFace& font) const override {
        return {0.6 * double(text.size()) * font.height, 0.8 * font.height, 0.2 * font.height};
    }
};

template <class Family>
struct StubItem : Family {
    using Family::Family;
    void DrawItem(const TVGRBaseDraw&) override {}
    void PrintItem(const TVGRBaseDraw&) override {}
};

struct StubText final : StubItem<TVGRBaseText> {
    using StubItem::StubItem;
    void CalcValues(int kind) override {
        StubItem::CalcValues(kind);
        const TTextSize size = FixedTextMeasurer().Measure(GetDText(), {Font().name, double(Font().height)});
        const std::int32_t ascent = Round32(size.ascent), descent = Round32(size.descent);
        StoreMeasure({Round32(size.width * double(GetScaleX())), ascent + descent, ascent, descent, 0, 1});
    }
};

struct StubBarcode final : StubItem<TVGRBaseBarcode> {
    using StubItem::StubItem;
    void CalcValues(int kind) override {
        if (GetShowNumber()) {
            const TTextSize size = FixedTextMeasurer().Measure(u"0", {GetFontName(), double(BaseFontHeight())});
            StoreDigitMeasure({Round32(size.ascent), Round32(size.descent + std::max(BaseDistance(), 0)), 0, 0, 1});
        }
        StubItem::CalcValues(kind);
    }
};

using StubTable = ItemTable<StubItem, StubText, StubBarcode>;

} // namespace vagrel::test
