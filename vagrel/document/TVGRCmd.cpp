// SPDX-License-Identifier: MIT
// The table of what can be undone: for each property where its value is read and where it goes back.
#include <vagrel/document/TVGRCmd.h>

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/document/TVGRCmd_p.h>
#include <vagrel/document/Versions.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/persistence/TBinaryWriter.h>

#include <algorithm>

namespace vagrel {

namespace {

constexpr std::int32_t AnyPoint = -1;

struct TProperty {
    TVGRCmdKind kind;
    std::int32_t index;
    TVGRCmdValue (*get)(TVGRBaseItem&, std::int32_t index);
    void (*set)(TVGRBaseItem&, std::int32_t index, const TVGRCmdValue&);
};

[[noreturn]] void Missing() { throw ENotAvailable(u"The undo of this property is not available yet"); }

template <class I>
I& Capability(TVGRBaseItem& item) {
    I* capability = Query<I>(&item);
    if (!capability)
        Missing();
    return *capability;
}

template <class T>
TVGRCmdValue Packed(T value) {
    if constexpr (std::is_integral_v<T> || std::is_enum_v<T>)
        return std::int64_t(value);
    else
        return TVGRCmdValue(std::move(value));
}

template <class T>
T Unpacked(const TVGRCmdValue& value) {
    if constexpr (std::is_integral_v<T> || std::is_enum_v<T>)
        return T(std::get<std::int64_t>(value));
    else if constexpr (std::is_same_v<T, std::u16string_view>)
        return std::get<std::u16string>(value);
    else
        return std::get<T>(value);
}

// A property with a getter and a setter that records.
template <auto Get, auto Set>
struct TAccess;
template <class I, class Value, class Argument, Value (I::*Get)() const, void (I::*Set)(Argument)>
struct TAccess<Get, Set> {
    static TVGRCmdValue Read(TVGRBaseItem& item, std::int32_t) { return Packed((Capability<I>(item).*Get)()); }
    static void Write(TVGRBaseItem& item, std::int32_t, const TVGRCmdValue& value) {
        (Capability<I>(item).*Set)(Unpacked<Argument>(value));
    }
};

// A coordinate of a point, likewise.
template <float (TVGRBaseItem::*Get)(int) const, void (TVGRBaseItem::*Set)(int, float)>
struct TCoordinate {
    static TVGRCmdValue Read(TVGRBaseItem& item, std::int32_t point) { return (item.*Get)(point); }
    static void Write(TVGRBaseItem& item, std::int32_t point, const TVGRCmdValue& value) {
        (item.*Set)(point, std::get<float>(value));
    }
};

template <auto Get, auto Set>
constexpr TProperty Property(TVGRCmdKind kind, std::int32_t index) {
    return {kind, index, TAccess<Get, Set>::Read, TAccess<Get, Set>::Write};
}

// What has no setter that records: the opposite is recorded here.

TVGRCmdValue ReadPenWidth(TVGRBaseItem& item, std::int32_t) { return std::int64_t(item.BasePenWidth()); }
void WritePenWidth(TVGRBaseItem& item, std::int32_t, const TVGRCmdValue& value) {
    if (TVGRBaseValueCmd::AddCommand(item, cmd::PenWidth))
        item.StorePenWidth(Unpacked<std::int32_t>(value));
}

TVGRCmdValue ReadPoints(TVGRBaseItem& item, std::int32_t) { return item.Points(); }
void WritePoints(TVGRBaseItem& item, std::int32_t, const TVGRCmdValue& value) {
    if (TVGRElePosCmd::AddCommand(item))
        item.StorePoints(std::get<TKSLPtoA>(value));
}

TVGRCmdValue ReadPoint(TVGRBaseItem& item, std::int32_t point) { return item.GetPoint(point); }
void WritePoint(TVGRBaseItem& item, std::int32_t point, const TVGRCmdValue& value) {
    if (TVGRBasePosCmd::AddCommand(item, cmd::ItemPoint, point))
        item.SetPoint(point, std::get<TKSLPto>(value));
}

TVGRCmdValue ReadLinkPoint(TVGRBaseItem& item, std::int32_t point) {
    return Capability<IKSLLinkItem>(item).GetLinkPoint(point);
}
void WriteLinkPoint(TVGRBaseItem& item, std::int32_t point, const TVGRCmdValue& value) {
    if (!TVGRBasePosCmd::AddCommand(item, cmd::LinkPoint, point))
        return;
    const TKSLPto place = std::get<TKSLPto>(value);
    Capability<IKSLLinkItem>(item).SetBasePoint(point, place.bX, place.bY, true);
}

// A radius, or the centre of a round figure, as its setters would cut it to the page: what they follow from is kept
// instead, all points of a round figure, the radius of another.

TVGRCmdValue ReadPlace(TVGRBaseItem& item, std::int32_t) { return item.Points(); }
void StorePlace(TVGRBaseItem& item, const TVGRCmdValue& value) {
    item.StorePoints(std::get<TKSLPtoA>(value));
    item.UpdateBounds();
    item.StateUpdate();
}
void WriteCenter(TVGRBaseItem& item, std::int32_t index, const TVGRCmdValue& value) {
    if (TVGRFloatCmd::AddCommand(item, cmd::TFloatIndex(index)))
        StorePlace(item, value);
}

TVGRCmdValue ReadRadius(TVGRBaseItem& item, std::int32_t) {
    if (Query<IKSLCenter>(&item))
        return item.Points();
    return Capability<IKSLRadio>(item).GetBaseRadio();
}
void WriteRadius(TVGRBaseItem& item, std::int32_t, const TVGRCmdValue& value) {
    if (!std::holds_alternative<TKSLPtoA>(value))
        Capability<IKSLRadio>(item).SetBaseRadio(Unpacked<std::int64_t>(value));
    else if (TVGRBaseValueCmd::AddCommand(item, cmd::Radio))
        StorePlace(item, value);
}

using TCoordinateX = TCoordinate<&TVGRBaseItem::GetPointX, &TVGRBaseItem::SetPointX>;
using TCoordinateY = TCoordinate<&TVGRBaseItem::GetPointY, &TVGRBaseItem::SetPointY>;

// Families that come later bring their own rows: the value colour of a gauge, the terminals of a link, strikeout, frame
// and filter of an image.
constexpr TProperty Properties[] = {
    Property<&TVGRBaseItem::GetColor, &TVGRBaseItem::SetColor>(ckColor, cmd::Color),
    Property<&IKSLBack::GetBackColor, &IKSLBack::SetBackColor>(ckColor, cmd::Back),
    Property<&IKSLBack::GetBackColor, &IKSLBack::SetBackColor>(ckColor, cmd::BackInterface),
    Property<&IKSLFont::GetFontColor, &IKSLFont::SetFontColor>(ckColor, cmd::Font),
    Property<&IKSLSTerm::GetFromColor, &IKSLSTerm::SetFromColor>(ckColor, cmd::FromTerm),
    Property<&IKSLSTerm::GetToColor, &IKSLSTerm::SetToColor>(ckColor, cmd::ToTerm),
    {ckBaseValue, cmd::PenWidth, ReadPenWidth, WritePenWidth},
    {ckBaseValue, cmd::Radio, ReadRadius, WriteRadius},
    Property<&IKSLSTerm::BaseSizeFrom, &IKSLSTerm::SetBaseSizeFrom>(ckBaseValue, cmd::SizeFrom),
    Property<&IKSLSTerm::BaseSizeTo, &IKSLSTerm::SetBaseSizeTo>(ckBaseValue, cmd::SizeTo),
    Property<&IKSLBack::GetFilled, &IKSLBack::SetFilled>(ckBool, cmd::Filled),
    Property<&IKSLFont::GetBold, &IKSLFont::SetBold>(ckBool, cmd::Bold),
    Property<&IKSLFont::GetItalic, &IKSLFont::SetItalic>(ckBool, cmd::Italic),
    Property<&IKSLFont::GetUnderline, &IKSLFont::SetUnderline>(ckBool, cmd::Underline),
    Property<&IKSLStyle::GetLineType, &IKSLStyle::SetLineType>(ckEnumValue, cmd::LineType),
    Property<&IKSLSTerm::GetFromType, &IKSLSTerm::SetFromType>(ckEnumValue, cmd::FromType),
    Property<&IKSLSTerm::GetToType, &IKSLSTerm::SetToType>(ckEnumValue, cmd::ToType),
    Property<&TVGRBaseItem::GetAngle, &TVGRBaseItem::SetAngle>(ckEnumValue, cmd::Angle),
    Property<&IKSLBar1D2D::GetBarWidth, &IKSLBar1D2D::SetBarWidth>(ckFloat, cmd::BarWidth),
    Property<&IKSLBar1D2D::GetBarHeight, &IKSLBar1D2D::SetBarHeight>(ckFloat, cmd::BarHeight),
    Property<&IKSLBar1D2D::GetFactor, &IKSLBar1D2D::SetFactor>(ckFloat, cmd::Factor),
    {ckFloat, cmd::CenterX, ReadPlace, WriteCenter},
    {ckFloat, cmd::CenterY, ReadPlace, WriteCenter},
    Property<&IKSLFont::GetFontName, &IKSLFont::SetFontName>(ckTxt, cmd::FontName),
    Property<&IKSLText::GetText, &IKSLText::SetText>(ckTxt, cmd::Text),
    Property<&IKSLSText::GetText, &IKSLSText::SetText>(ckTxt, cmd::LevelText),
    Property<&IKSLSText::GetText, &IKSLSText::SetText>(ckTxt, cmd::ArrowText),
    {ckPosX, AnyPoint, TCoordinateX::Read, TCoordinateX::Write},
    {ckPosY, AnyPoint, TCoordinateY::Read, TCoordinateY::Write},
    {ckItemPoint, AnyPoint, ReadPoint, WritePoint},
    {ckLinkPoint, AnyPoint, ReadLinkPoint, WriteLinkPoint},
    {ckElePos, 0, ReadPoints, WritePoints},
};

const TProperty& Find(TVGRCmdKind kind, std::int32_t index) {
    const auto* row = std::ranges::find_if(Properties, [=](const TProperty& property) {
        return property.kind == kind && (property.index == index || property.index == AnyPoint);
    });
    if (row == std::end(Properties))
        Missing();
    return *row;
}

// Nothing for an item that the binary form cannot hold.
TVGRCmdValue Snapshot(const TVGRBaseItem& item) {
    TBinaryWriter writer;
    writer.Write(CurrentVersion);
    try {
        item.WriteData(writer);
    } catch (const EOutOfRange&) {
        return {};
    }
    return writer.Take();
}

bool Record(TVGRBaseItem& item, TVGRCmdKind kind, std::int32_t index) { return item.KSLab().Record(item, kind, index); }

} // namespace

TVGRCmdValue StoreState(TVGRBaseItem& item, TVGRCmdKind kind, std::int32_t index) {
    if (kind == ckCreate)
        return {};
    return kind == ckDelete ? Snapshot(item) : Find(kind, index).get(item, index);
}

void RestoreState(TVGRBaseItem& item, const TVGRCmd& command) {
    Find(command.fKind, command.fIndex).set(item, command.fIndex, command.fValue);
}

bool TVGRColorCmd::AddCommand(TVGRBaseItem& item, cmd::TColorIndex index) { return Record(item, ckColor, index); }

bool TVGRCreateCmd::AddCommand(TVGRBaseItem& item) { return Record(item, ckCreate, 0); }

bool TVGRDeleteCmd::AddCommand(TVGRBaseItem& item) { return Record(item, ckDelete, 0); }

bool TVGRBaseValueCmd::AddCommand(TVGRBaseItem& item, cmd::TBaseValueIndex index) {
    return Record(item, ckBaseValue, index);
}
bool TVGRBoolCmd::AddCommand(TVGRBaseItem& item, cmd::TBoolIndex index) { return Record(item, ckBool, index); }
bool TVGREnumValueCmd::AddCommand(TVGRBaseItem& item, cmd::TEnumIndex index) {
    return Record(item, ckEnumValue, index);
}

bool TVGRPosCmd::AddCommand(TVGRBaseItem& item, int point, TKSLPosType type) {
    return Record(item, type == ptX ? ckPosX : ckPosY, point);
}

bool TVGRBasePosCmd::AddCommand(TVGRBaseItem& item, cmd::TPointKind kind, int point) {
    return Record(item, kind == cmd::ItemPoint ? ckItemPoint : ckLinkPoint, point);
}

bool TVGRElePosCmd::AddCommand(TVGRBaseItem& item) { return Record(item, ckElePos, 0); }
bool TVGRTxtCmd::AddCommand(TVGRBaseItem& item, cmd::TTextIndex index) { return Record(item, ckTxt, index); }
bool TVGRFloatCmd::AddCommand(TVGRBaseItem& item, cmd::TFloatIndex index) { return Record(item, ckFloat, index); }

} // namespace vagrel
