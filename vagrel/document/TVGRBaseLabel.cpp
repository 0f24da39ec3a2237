// SPDX-License-Identifier: MIT
// The life of a document, its identifiers and its simple properties.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/document/TItemIndex_p.h>
#include <vagrel/document/TUndoStacks_p.h>
#include <vagrel/document/TVGRBackSurf.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/document/TVGRLayer.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/document/TVGRSettings.h>
#include <vagrel/editor/CrossingsWorker.h>
#include <vagrel/editor/GroupDrag.h>
#include <vagrel/editor/Guides.h>
#include <vagrel/editor/TAct.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/geo/TVGRMapping.h>
#include <vagrel/items/lines/TVGRDimStyle.h>
#include <vagrel/merge/TVGRCounter.h>
#include <vagrel/merge/TVGRData.h>
#include <vagrel/messages/TVGRMsg.h>
#include <vagrel/platform/Files.h>
#include <vagrel/symbols/TVGRBaseLibSymbol.h>

#include <algorithm>
#include <filesystem>
#include <limits>

namespace vagrel {

TVGRBaseLabel* TVGRBaseLabel::Create(TComponent*) {
    throw EVagrel(u"Can not create TVGRBaseLabel, use a descendant type.");
}

TVGRBaseLabel::TVGRBaseLabel(TComponent* owner)
    : TComponent(owner), fIndex(std::make_unique<detail::TItemIndex>()), fCells(std::make_unique<detail::TCellIndex>()),
      fStacks(std::make_unique<detail::TUndoStacks>()), fGuides(std::make_unique<Guides>()),
      fGroupDrag(std::make_unique<GroupDrag>()),
      fCrossings(std::make_unique<CrossingsWorker>([this] { return FiguresOf(*this); })),
      fPrintInfo(std::make_unique<TVGRBasePrintInfo>(*this)), fData(std::make_unique<TVGRData>(*this)),
      fMeasure(std::make_unique<TVGRMeasure>(*this)), fMapping(std::make_unique<TVGRMapping>(*this)),
      fBackSurf(std::make_unique<TVGRBackSurf>(*this, true)), fSettings(std::make_unique<TVGRSettings>(*this)) {
    AddBaseLayer();
    AddBaseStyle();
}

TVGRBaseLabel::~TVGRBaseLabel() { Teardown(); }

void TVGRBaseLabel::Teardown() {
    if (fDestroying)
        return;
    fDestroying = true;
    fCrossings->Stop();
    fMemCopy.clear();
    fObservers.Clear();
    Clear({cleAll, cleBaseLayer, cleBaseStyle}, false);
}

void TVGRBaseLabel::AddBaseLayer() { new TVGRLayer(*this); }

void TVGRBaseLabel::AddBaseStyle() {
    constexpr TAlphaColor grey = 0xFF808080;
    new TVGRDimStyle(*this, TVGRMsg::GetPropValue(u"Default"), grey, grey, true, true);
}

void TVGRBaseLabel::Assign(const TVGRBaseLabel& source) {
    fOptions = source.fOptions;
    fData->Assign(*source.fData);
    fBackSurf->Assign(*source.fBackSurf);
    fMeasure->Assign(*source.fMeasure);
    fImageFolder = source.fImageFolder;
    fOpenImgFolder = source.fOpenImgFolder;
    fLibraryFolder = source.fLibraryFolder;
}

void TVGRBaseLabel::Loaded() {
    TComponent::Loaded();
    if (!fLngFileName.empty())
        TVGRMsg::LoadResources(fLngFileName);
    fInfo = TAct::Reset();
    FireInfoEvent(false);
    if (!fData->GetJson().empty())
        fData->CheckJson();
}

void TVGRBaseLabel::Notification(TComponent* component, TOperation operation) {
    TComponent::Notification(component, operation);
    if (operation == opRemove)
        fObservers.Forget(component);
}

void TVGRBaseLabel::New() {
    Clear({cleAll}, true);
    fMeasure->Reset();
}

std::int32_t TVGRBaseLabel::NextID() { return fMaxID < std::numeric_limits<std::int32_t>::max() ? fMaxID++ : fMaxID; }

void TVGRBaseLabel::RaiseMaxID(std::int32_t id) { fMaxID = std::max(fMaxID, id); }

bool TVGRBaseLabel::RepeatID(std::u16string_view id, const TVGRBaseItem* item) const {
    return fIndex->Repeats(fItems, id, item);
}

TVGRBaseItem* TVGRBaseLabel::SearchItem(std::int32_t id, bool scrollToView) {
    TVGRBaseItem* item = fIndex->First(fItems, id);
    return item ? Found(*item, scrollToView) : nullptr;
}

TVGRBaseItem* TVGRBaseLabel::SearchItem(std::u16string_view id, bool scrollToView) {
    TVGRBaseItem* item = fIndex->First(fItems, id);
    return item ? Found(*item, scrollToView) : nullptr;
}

TVGRBaseItem* TVGRBaseLabel::Found(TVGRBaseItem& item, bool scrollToView) {
    if (!scrollToView)
        return &item;
    const TItemHandle found(item);
    ScrollItem(item);
    return found.Get();
}

void TVGRBaseLabel::ScrollItem(TVGRBaseItem& item) { SelectOnly(item, chScrollSelect); }

TVGRBaseItem* TVGRBaseLabel::ElementByID(std::u16string_view id, bool select) {
    TVGRBaseItem* item = SearchItem(id, false);
    if (!item || !select)
        return item;
    const TItemHandle found(*item);
    SelectOnly(*item, chSelect);
    return found.Get();
}

void TVGRBaseLabel::SelectOnly(TVGRBaseItem& item, TKSChange change) {
    const TItemHandle chosen(item);
    ClearSelection(false);
    if (chosen)
        AddToSelection(item, false);
    if (fEditorMode != emInteractive)
        FillSelPoints();
    ChangeValue(change);
}

TKSLEdAction TVGRBaseLabel::GetAction() const { return TAct::GetAction(); }
TKSLEdState TVGRBaseLabel::GetEditorState() const { return TAct::GetState(); }

void TVGRBaseLabel::SetLngFileName(std::u16string_view value) {
    if (value == fLngFileName)
        return;
    fLngFileName = value;
    if (!fLngFileName.empty())
        TVGRMsg::LoadResources(fLngFileName);
}

std::u16string TVGRBaseLabel::GetAbsoluteImagePath() const {
    const std::filesystem::path folder(ToUtf8(fImageFolder));
    return folder.is_absolute() ? fImageFolder : FromUtf8((ProgramFolder() / folder).string());
}

namespace {

// An exact copy: what images of it were taken fits the new one too.
template <class Part>
void TakePlace(std::unique_ptr<Part>& place, std::unique_ptr<Part> own) {
    if (!own)
        return;
    TImage values = ImageOf(*place);
    ExchangeImage(*own, values);
    place = std::move(own);
}

} // namespace

void TVGRBaseLabel::TakeBackSurf(std::unique_ptr<TVGRBackSurf> own) { TakePlace(fBackSurf, std::move(own)); }
void TVGRBaseLabel::TakePrintInfo(std::unique_ptr<TVGRBasePrintInfo> own) { TakePlace(fPrintInfo, std::move(own)); }

void HostOperations::ComposeImage(std::u16string_view, std::u16string_view, int, int, int) {
    throw ENotAvailable(u"Map composition is not implemented by this Vagrel class");
}

void TVGRBaseLabel::SetMeasure(const TVGRMeasure& value) { fMeasure->Assign(value); }
void TVGRBaseLabel::SetBackSurf(const TVGRBackSurf& value) { fBackSurf->Assign(value); }
void TVGRBaseLabel::SetSettings(const TVGRSettings& value) { fSettings->Assign(value); }
void TVGRBaseLabel::SetMapping(const TVGRMapping& value) { fMapping->Assign(value); }
void TVGRBaseLabel::SetData(const TVGRData& value) { fData->Assign(value); }

} // namespace vagrel
