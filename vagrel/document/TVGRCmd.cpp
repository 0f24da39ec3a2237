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
    TVGRBaseValueCmd::AddCommand(item, cmd::PenWidth);
    item.StorePenWidth(Unpacked<std::int32_t>(value));
}

TVGRCmdValue ReadPoints(TVGRBaseItem& item, std::int32_t) { return item.Points(); }
void WritePoints(TVGRBaseItem& item, std::int32_t, const TVGRCmdValue& value) {
    TVGRElePosCmd::AddCommand(item);
    item.StorePoints(std::get<TKSLPtoA>(value));
}

TVGRCmdValue ReadPoint(TVGRBaseItem& item, std::int32_t point) { return item.GetPoint(point); }
void WritePoint(TVGRBaseItem& item, std::int32_t point, const TVGRCmdValue& value) {
    TVGRBasePosCmd::AddCommand(item, cmd::ItemPoint, point);
    item.SetPoint(point, std::get<TKSLPto>(value));
}

TVGRCmdValue ReadLinkPoint(TVGRBaseItem& item, std::int32_t point) {
    return Capability<IKSLLinkItem>(item).GetLinkPoint(point);
}
void WriteLinkPoint(TVGRBaseItem& item, std::int32_t point, const TVGRCmdValue& value) {
    TVGRBasePosCmd::AddCommand(item, cmd::LinkPoint, point);
    const TKSLPto place = std::get<TKSLPto>(value);
    Capability<IKSLLinkItem>(item).SetBasePoint(point, place.bX, place.bY, true);
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
    Property<&IKSLRadio::GetBaseRadio, &IKSLRadio::SetBaseRadio>(ckBaseValue, cmd::Radio),
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
    Property<&IKSLCenter::GetCenterX, &IKSLCenter::SetCenterX>(ckFloat, cmd::CenterX),
    Property<&IKSLCenter::GetCenterY, &IKSLCenter::SetCenterY>(ckFloat, cmd::CenterY),
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

std::string Snapshot(const TVGRBaseItem& item) {
    TBinaryWriter writer;
    writer.Write(CurrentVersion);
    item.WriteData(writer);
    return writer.Take();
}

void Record(TVGRBaseItem& item, TVGRCmdKind kind, std::int32_t index) { item.KSLab().Record(item, kind, index); }

} // namespace

TVGRCmdValue StoreState(TVGRBaseItem& item, TVGRCmdKind kind, std::int32_t index) {
    if (kind == ckCreate)
        return {};
    return kind == ckDelete ? Snapshot(item) : Find(kind, index).get(item, index);
}

void RestoreState(TVGRBaseItem& item, const TVGRCmd& command) {
    Find(command.fKind, command.fIndex).set(item, command.fIndex, command.fValue);
}

void TVGRColorCmd::AddCommand(TVGRBaseItem& item, cmd::TColorIndex index) {
    Record(item, ckColor, index);
    item.KSLab().AddState(lsUpdate);
}

void TVGRCreateCmd::AddCommand(TVGRBaseItem& item) { Record(item, ckCreate, 0); }

void TVGRDeleteCmd::AddCommand(TVGRBaseItem& item) {
    try {
        Record(item, ckDelete, 0);
    } catch (const EOutOfRange&) {
        // Too large for a snapshot: the item goes all the same, for good.
    }
}

void TVGRBaseValueCmd::AddCommand(TVGRBaseItem& item, cmd::TBaseValueIndex index) { Record(item, ckBaseValue, index); }
void TVGRBoolCmd::AddCommand(TVGRBaseItem& item, cmd::TBoolIndex index) { Record(item, ckBool, index); }
void TVGREnumValueCmd::AddCommand(TVGRBaseItem& item, cmd::TEnumIndex index) { Record(item, ckEnumValue, index); }

void TVGRPosCmd::AddCommand(TVGRBaseItem& item, int point, TKSLPosType type) {
    Record(item, type == ptX ? ckPosX : ckPosY, point);
}

void TVGRBasePosCmd::AddCommand(TVGRBaseItem& item, cmd::TPointKind kind, int point) {
    Record(item, kind == cmd::ItemPoint ? ckItemPoint : ckLinkPoint, point);
}

void TVGRElePosCmd::AddCommand(TVGRBaseItem& item) { Record(item, ckElePos, 0); }
void TVGRTxtCmd::AddCommand(TVGRBaseItem& item, cmd::TTextIndex index) { Record(item, ckTxt, index); }
void TVGRFloatCmd::AddCommand(TVGRBaseItem& item, cmd::TFloatIndex index) { Record(item, ckFloat, index); }

} // namespace vagrel
