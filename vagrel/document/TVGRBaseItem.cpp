// SPDX-License-Identifier: MIT
// Life, identity and style of items, and their reports to the document.
#include <vagrel/document/TVGRBaseItem.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/document/TVGRCmd.h>
#include <vagrel/document/TVGRLayer.h>
#include <vagrel/document/TVGRReceiver_p.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/TVGRBaseDraw.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/messages/TVGRMsg.h>

#include <cmath>

namespace vagrel {

TVGRBaseItem::TVGRBaseItem(TVGRBaseLabel& owner, TKSLItemType type, bool preview)
    : TVGRBaseItem(owner, type, owner.GetLayer(1), preview) {}

// From here on the item counts as constructed: what throws below, or in a derived class, ends it by its destructor.
TVGRBaseItem::TVGRBaseItem(TVGRBaseLabel& owner, TKSLItemType type, TVGRLayer& layer, bool preview)
    : TVGRBaseItem(owner, type, layer, preview, TStage::Built) {
    owner.Adopt(*this);
    Record({ckCreate, 0});
}

TVGRBaseItem::TVGRBaseItem(TVGRBaseLabel& owner, TKSLItemType type, TVGRLayer& layer, bool preview, TStage)
    : fOwner(owner), fItemType(type), fLayer(&layer), fPoints(std::size_t(NumPointsItem(type))), fFromPreview(preview) {
    if (!owner.HasAnyState({lsReading, lsPaste}))
        fInID = owner.NextID();
    fID = DefaultName();
}

TVGRBaseItem::~TVGRBaseItem() { fOwner.Forget(*this); }

const std::shared_ptr<TVGRReceiver>& TVGRBaseItem::Receiver() {
    if (!fReceiver)
        fReceiver = std::make_shared<TVGRReceiver>(TVGRReceiver{this, {}});
    return fReceiver;
}

void TVGRBaseItem::Members(TMembers& members) {
    members(fID, fColor, fOptions, fLayer, fInID, fPenWidth, fPoints, fAngle, fBoundsRect, fChanged, fNeedRead, fResize,
            aIsData);
}

std::u16string TVGRBaseItem::DefaultName() const { return std::u16string(NameItem(fItemType)) + IntToStr(fInID, 3); }

void TVGRBaseItem::SetID(std::u16string_view value) {
    if (value == fID)
        return;
    const std::u16string trimmed(Trim(value));
    if (fOwner.GetOptions().Has(loUniqueID) && fOwner.RepeatID(trimmed, this))
        throw EInvalidOperation(TVGRMsg::GetErrorValue(u"RepeatID"));
    fOwner.SetModified(true);
    Put(fID, trimmed);
}

void TVGRBaseItem::Touch() { fOwner.Touch(*this); }

bool TVGRBaseItem::Record(TUndoRow row) {
    Touch();
    return row.kind == ckNone || fOwner.Record(*this, row.kind, row.index);
}

void TVGRBaseItem::Follow(TFollow follow) {
    switch (follow) {
    case TFollow::None:
        return;
    case TFollow::Modified:
        return StateModified();
    case TFollow::Bounds:
        UpdateBounds();
        [[fallthrough]];
    case TFollow::Update:
        return StateUpdate();
    case TFollow::Calc:
        return StateCalc();
    }
}

void TVGRBaseItem::SetColor(TAlphaColor value) { Store(fColor, value, cmd::Color); }
void TVGRBaseItem::SetAngle(TKSLAngle value) { Store(fAngle, value, cmd::Angle); }

float TVGRBaseItem::GetPenWidth() const { return GetBaseValue(fPenWidth); }

void TVGRBaseItem::SetPenWidth(float mm) { Store(fPenWidth, ToInt32(SetBaseValue(mm)), cmd::PenWidth, TFollow::None); }

void TVGRBaseItem::SetLayer(TVGRLayer& value) {
    if (&value == fLayer)
        return;
    Put(fLayer, &value);
    fOwner.SortItemsZLayer();
}

bool TVGRBaseItem::Shows(TKSLayerOpts options) const {
    return fOptions.HasAll(options) && fLayer->GetOptions().HasAll(options);
}

void TVGRBaseItem::NotifyUpdate(TKSChange change) const { fOwner.ChangeValue(change); }
void TVGRBaseItem::StateModified() { fOwner.ChangeState(lsModified, *this); }
void TVGRBaseItem::StateUpdate() { fOwner.ChangeState(Shows({lopVisible}) ? lsUpdate : lsModified, *this); }
void TVGRBaseItem::StateCalc() { fOwner.ChangeState(Shows({lopVisible}) ? lsCalc : lsCalcNoUpdate, *this); }

void TVGRBaseItem::Keep(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props, TKSLInpectorBaseTypes keptBase,
                        TKSLInpectorTypes kept) {
    base *= keptBase;
    props *= kept;
}

void TVGRBaseItem::JsonInspector(TKSLInpectorBaseTypes, TKSLInpectorTypes, TJsonArray&) const {
    throw ENotAvailable(u"The rows of the inspector are not available yet");
}

void TVGRBaseItem::FillInspector(TKSLInpectorBaseTypes base, TKSLInpectorTypes props, TJsonArray& rows) const {
    JsonInspector(base, props, rows);
}

void TVGRBaseItem::DrawElement(const TVGRBaseDraw& draw) {
    if ((draw.fState == dsPreview || draw.fState == dsExport) && GetIsData())
        DrawPreview(draw);
    else
        DrawItem(draw);
}

void TVGRBaseItem::DrawPreview(const TVGRBaseDraw& draw) {
    for (const auto& copy : fOwner.Preview())
        if (copy->fInID == fInID && copy->aRow == draw.aRow && copy->aCol == draw.aCol)
            copy->DrawItem(draw);
}

float TVGRBaseItem::FromBase(std::int64_t value) const { return float(fOwner.ToPaper(double(value))); }

float TVGRBaseItem::XFromBaseAngle(std::int64_t x, std::int64_t length, double angle) const {
    return float(fOwner.ToPaper(double(x) + double(length) * std::cos(angle)));
}

float TVGRBaseItem::YFromBaseAngle(std::int64_t y, std::int64_t length, double angle) const {
    return float(fOwner.ToPaper(double(y) + double(length) * std::sin(angle)));
}

} // namespace vagrel
