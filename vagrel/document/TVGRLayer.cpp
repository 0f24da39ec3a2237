// SPDX-License-Identifier: MIT
// Properties of a layer and what they do to its items.
#include <vagrel/document/TVGRLayer.h>

#include <vagrel/document/TVGR2DItem.h>
#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/document/UpdateScope.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/messages/TVGRMsg.h>

#include <filesystem>

namespace vagrel {

TVGRLayer::TVGRLayer(TVGRBaseLabel& owner)
    : TVGRLayer(owner, TVGRMsg::GetPropValue(u"Default"), OpaqueBlack, OpaqueWhite) {}

TVGRLayer::TVGRLayer(TVGRBaseLabel& owner, std::u16string_view name, TAlphaColor, TAlphaColor)
    : fOwner(owner), fName(name) {
    owner.Adopt(*this);
}

TVGRLayer::~TVGRLayer() { fOwner.Forget(*this); }

void TVGRLayer::Touch() { fOwner.Touch(*this); }

template <class Action>
void TVGRLayer::ForEachItem(Action action) {
    const UpdateScope bracket(fOwner);
    std::vector<TVGRBaseItem*> items;
    for (int i = 1; i <= fOwner.ItemsCount(); ++i)
        if (&fOwner.GetItem(i)->GetLayer() == this)
            items.push_back(fOwner.GetItem(i));
    ForEachLiving(items, action);
}

template <class T>
void TVGRLayer::Change(T& field, T value) {
    if (value == field)
        return;
    Put(field, value);
    fOwner.SetModified(true);
}

void TVGRLayer::SetName(std::u16string_view value) {
    if (value.empty())
        throw EVagrel(TVGRMsg::GetErrorValue(u"EmptyText"));
    Put(fName, value);
}

void TVGRLayer::SetOptions(TKSLayerOpts value) {
    if (value.HasAll({lopImage, lopMap}))
        throw EInvalidOperation(u"You cannot select lopImage and lopMap simultaneously");
    Put(fOptions, value);
    fOwner.CheckBackLayer();
}

void TVGRLayer::SetColor(TAlphaColor value, bool apply) {
    Put(fColor, value);
    if (apply)
        ForEachItem([&](TVGRBaseItem& item) { item.SetColor(value); });
}

void TVGRLayer::SetBackColor(TAlphaColor value, bool apply) {
    Put(fBackColor, value);
    if (apply)
        ForEachItem([&](TVGRBaseItem& item) {
            if (auto* area = dynamic_cast<TVGR2DItem*>(&item))
                area->SetBackColor(value);
        });
}

void TVGRLayer::SetFontColor(TAlphaColor value, bool apply) {
    Put(fFont.color, value);
    if (apply)
        ForEachItem([&](TVGRBaseItem& item) {
            if (auto* font = Query<IKSLFont>(&item))
                font->SetFontColor(value);
        });
}

void TVGRLayer::SetValues() {
    ForEachItem([this](TVGRBaseItem& item) {
        item.StorePenWidth(fPenWidth);
        if (auto* area = dynamic_cast<TVGR2DItem*>(&item))
            area->StoreBackColor(fBackColor);
        auto* font = Query<IKSLFont>(&item);
        // Each setter tells the host, which may end the item.
        const TItemHandle alive(item);
        item.SetColor(fColor);
        auto set = [&](auto setter, auto value) {
            if (alive && font)
                (font->*setter)(value);
        };
        set(&IKSLFont::SetFontColor, fFont.color);
        set(&IKSLFont::SetFontName, std::u16string_view(fFont.name));
        set(&IKSLFont::SetFontHeight, GetFontHeight());
        set(&IKSLFont::SetBold, fFont.bold);
        set(&IKSLFont::SetItalic, fFont.italic);
        set(&IKSLFont::SetUnderline, fFont.underline);
    });
}

float TVGRLayer::GetPenWidth() const { return GetBaseValue(fPenWidth); }
void TVGRLayer::SetPenWidth(float mm) { Put(fPenWidth, ToInt32(SetBaseValue(mm))); }
float TVGRLayer::GetFontHeight() const { return GetBaseValue(fFont.height); }
void TVGRLayer::SetFontHeight(float mm) { Put(fFont.height, ToInt32(SetBaseValue(mm))); }
void TVGRLayer::SetLineType(TKSLineType value) { Change(fLineType, value); }
void TVGRLayer::SetZPos(std::uint16_t value) { Change(fZPos, value); }
void TVGRLayer::SetItalic(bool value) { Change(fFont.italic, value); }

float TVGRLayer::Restricted(std::int32_t base) const { return fOwner.GetVal(base, true); }

void TVGRLayer::StoreMargin(std::int32_t& field, float value, TKSLMeasureType limit) {
    const std::int64_t size = fOwner.GetMeasure().GetSize(limit, false);
    std::int64_t base = fOwner.SetVal(value, true);
    if (base < 0)
        base = 0;
    else if (base > size)
        base = size / 2;
    Change(field, ToInt32(base));
}

void TVGRLayer::SetFileImg(std::u16string_view file) {
    if (file.empty() || file == fFileImg)
        return;
    namespace fs = std::filesystem;
    Touch();
    fArrayB.clear();
    const fs::path source(ToUtf8(file));
    const fs::path target = fs::path(ToUtf8(fOwner.GetAbsoluteImagePath())) / source.filename();
    std::error_code error;
    // A file of this name in the image folder is taken for the same picture.
    if (!fs::exists(target, error)) {
        if (!fs::copy_file(source, target, error))
            throw EStreamError("cannot copy \"" + source.string() + "\" to \"" + target.string() +
                               "\": " + error.message());
    }
    fFileImg = FromUtf8(source.filename().string());
    // Compared exactly: ".PNG" counts as any other.
    const std::string extension = source.extension().string();
    fImageType = extension == ".png" ? itPng : extension == ".gif" ? itGif : itJpeg;
    fOwner.CheckBackLayer();
}

void TVGRLayer::Assign(const TVGRLayer& s) {
    Touch();
    fName = s.fName, fColor = s.fColor, fBackColor = s.fBackColor, fLineType = s.fLineType, fOptions = s.fOptions;
    fZPos = s.fZPos, fPenWidth = s.fPenWidth, fFill = s.fFill;
    const bool strikeout = fFont.strikeout;
    fFont = s.fFont;
    fFont.strikeout = strikeout;
    fFileImg = s.fFileImg, fEmbeded = s.fEmbeded, fPrintImg = s.fPrintImg;
    fImgMarLeft = s.fImgMarLeft, fImgMarTop = s.fImgMarTop, fImgMarBottom = s.fImgMarBottom;
    fImgMarRight = s.fImgMarRight;
    fZoom = s.fZoom, fMapProvider = s.fMapProvider, fLatitude = s.fLatitude, fLongitude = s.fLongitude;
    fShowMapCenter = s.fShowMapCenter;
}

} // namespace vagrel
