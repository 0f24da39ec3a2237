// SPDX-License-Identifier: MIT
// The frame that every item shares in the JSON and the binary form, and its name in SVG.
#include <vagrel/document/TVGRBaseItem.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/document/TVGRLayer.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/persistence/JsonColors.h>
#include <vagrel/persistence/TBinaryFields.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonFields.h>

#include <algorithm>
#include <cmath>

namespace vagrel {

namespace {

// Leaves room for the numbers of items to come.
constexpr std::int32_t HighestID = 1 << 30;

void CheckNumber(std::int32_t number) {
    if (number > HighestID)
        throw Refusal<EOutOfRange>("InID", std::to_string(number), "numbers up to " + std::to_string(HighestID));
}

// From here on single precision is coarser than the third decimal.
constexpr double FirstInexact = 16384;

} // namespace

std::unique_ptr<TJsonObject> TVGRBaseItem::WriteJson() const {
    auto json = std::make_unique<TJsonObject>();
    json->SetInt(u"Type", fItemType);
    json->SetString(u"TypeName", NameItem(fItemType));
    json->SetInt(u"InID", fInID);
    json->SetString(u"ID", fID);
    json->SetInt(u"Layer", fOwner.LayerIdx(*fLayer));
    if (!HasTrait(trUnstyled)) {
        json->SetInt(u"Angle", fAngle);
        SetAlphaColor(*json, u"Color", fColor);
        json->SetFloat(u"PenWidth", RoundTo3(GetPenWidth()));
    }
    TJsonObject& options = json->AddObject(u"Options");
    options.SetBool(u"Visible", fOptions.Has(lopVisible));
    options.SetBool(u"Print", fOptions.Has(lopPrint));
    options.SetBool(u"Selectable", fOptions.Has(lopSelectable));
    options.SetBool(u"Export", fOptions.Has(lopExport));
    TJsonArray& points = json->AddArray(u"Points");
    for (int i = 1; i <= int(fPoints.size()); ++i) {
        TJsonObject& point = points.AddObject();
        point.SetFloat(u"X", CoordinateOf(At(i).bX));
        point.SetFloat(u"Y", CoordinateOf(At(i).bY));
    }
    TJsonFields keys(*json, TJsonFields::Write);
    const_cast<TVGRBaseItem*>(this)->Keys(keys);
    return json;
}

void TVGRBaseItem::ReadJson(std::int32_t, TJsonObject& json) {
    TouchName();
    fInID = json.GetInt(u"InID");
    CheckNumber(fInID);
    fID = json.GetString(u"ID");
    fOwner.RaiseMaxID(fInID);
    fLayer = &fOwner.LayerAt(std::min(json.GetInt(u"Layer"), fOwner.LayersCount()));
    if (!HasTrait(trUnstyled)) {
        fAngle = TKSLAngle(json.GetInt(u"Angle"));
        fColor = GetAlphaColor(json.GetObject(u"Color"));
        SetPenWidth(float(json.GetFloat(u"PenWidth")));
    }
    TJsonObject& options = json.GetObject(u"Options");
    fOptions = {};
    fOptions.Put(lopVisible, options.GetBool(u"Visible"));
    fOptions.Put(lopPrint, options.GetBool(u"Print"));
    fOptions.Put(lopSelectable, options.GetBool(u"Selectable"));
    fOptions.Put(lopExport, options.GetBool(u"Export"));
    TJsonArray& points = json.GetArray(u"Points");
    if (HasTrait(trFreePoints))
        fPoints.resize(std::size_t(points.Count()));
    for (int i = 1; i <= points.Count() && InRange(i); ++i) {
        TJsonObject& point = points.GetObject(i - 1);
        const double x = point.GetFloat(u"X"), y = point.GetFloat(u"Y");
        if (IsExact(x))
            StoreX(i, Round(x * double(UnitFactor(fOwner.GetUnits()))));
        else
            SetPointX(i, float(x));
        if (IsExact(y))
            StoreY(i, Round(y * double(UnitFactor(fOwner.GetUnits()))));
        else
            SetPointY(i, float(y));
    }
    TJsonFields keys(json, TJsonFields::Read);
    Keys(keys);
    UpdateBounds();
}

void TVGRBaseItem::WriteData(TBinaryWriter& writer) const {
    if (fPoints.size() > 32767)
        throw EOutOfRange(u"The item \"" + fID + u"\" has more points than the binary form can hold: 32767");
    writer.Write(std::int32_t(fItemType));
    writer.Write(fInID);
    writer.Write(fID);
    writer.Write(std::int16_t(fOwner.LayerIdx(*fLayer)));
    writer.Write(fColor);
    writer.Write(fPenWidth);
    writer.Write(std::int32_t(fAngle));
    writer.Write(std::int32_t(fOptions.Bits()));
    writer.Write(std::int16_t(fPoints.size()));
    for (const TKSLPto& point : fPoints) {
        writer.Write(point.bX);
        writer.Write(point.bY);
    }
    TBinaryFields fields(writer);
    const_cast<TVGRBaseItem*>(this)->Fields(fields);
}

void TVGRBaseItem::ReadData(std::int32_t version, TBinaryReader& reader, TKSLReadType type) {
    TouchName();
    fInID = reader.Read<std::int32_t>();
    fID = reader.ReadString();
    if (type == rdPaste) {
        fInID = fOwner.NextID();
        SetName();
    } else {
        // A session may come to such a number, and undo brings back what it had.
        if (fOwner.HasAnyState({lsReading}))
            CheckNumber(fInID);
        fOwner.RaiseMaxID(fInID);
    }
    fLayer = &fOwner.LayerAt(reader.Read<std::int16_t>());
    fColor = reader.Read<TAlphaColor>();
    fPenWidth = reader.Read<std::int32_t>();
    fAngle = TKSLAngle(reader.Read<std::int32_t>());
    fOptions = TKSLayerOpts::FromBits(reader.Read<std::uint32_t>());
    const int count = reader.Read<std::int16_t>();
    if (count < 0 || std::size_t(count) * 2 * sizeof(std::int64_t) > reader.Left())
        throw Refusal<EStreamError>("count of points before byte " + std::to_string(reader.Position()),
                                    std::to_string(count), "what the rest of the data can hold");
    if (HasTrait(trFreePoints))
        fPoints.resize(std::size_t(count));
    for (int i = 1; i <= count; ++i) {
        const auto x = reader.Read<std::int64_t>();
        const auto y = reader.Read<std::int64_t>();
        SetBase(i, x, y);
    }
    TBinaryFields fields(reader, version);
    Fields(fields);
    UpdateBounds();
    if (type == rdPaste) {
        const TItemHandle alive(*this);
        BaseMove(fOwner.BaseMoveInc(), fOwner.BaseMoveInc(), 0, 0, moAll, true);
        if (alive)
            fOwner.AddToSelection(*this, false);
    }
}

bool TVGRBaseItem::IsExact(double coordinate) const {
    return fOwner.GetExactJson() && std::fabs(coordinate) >= FirstInexact;
}

double TVGRBaseItem::CoordinateOf(std::int64_t base) const {
    const double exact = double(base) / double(UnitFactor(fOwner.GetUnits()));
    return RoundTo3(IsExact(exact) ? exact : double(GetValue(base, fOwner.GetUnits())));
}

std::string TVGRBaseItem::GetSVGID(const TSVGOutput& out) const {
    if (!out.attrID)
        return {};
    SvgElement id = out.Element();
    (id << " id=\"").Name(ReplaceAll(fID, u" ", u"")) << "\" ";
    return id.Take();
}

void TVGRBaseItem::WritePoints(SvgElement& element, int first) const {
    for (int i = first; i <= int(fPoints.size()); ++i) {
        (element << (i > first ? " " : "")).Val(GetPointMMX(i)) << ",";
        element.Val(GetPointMMY(i));
    }
}

} // namespace vagrel
