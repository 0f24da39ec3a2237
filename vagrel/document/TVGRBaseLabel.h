// SPDX-License-Identifier: MIT
// The document: it owns the items, layers, styles and settings, runs the update cycle and tells its observers.
//
// The body of this class is spread by topic: TVGRBaseLabel.cpp (life, identifiers), _Update (update cycle, reading
// bracket, clearing), _Units (units and values), _Lists (accessors, ownership, layers), _io (JSON), TitleBlock.cpp,
// _Undo (undo stacks), Selection.cpp, Selection_Move.cpp, Arrange.cpp, svg/SaveSVG.cpp, merge/PageFill.cpp,
// merge/Values.cpp, merge/FieldLists.cpp, editor/Actions.cpp, PickEditor.cpp, Constructions.cpp, UpEditor.cpp,
// RightButton.cpp, Picking.cpp, Snapping.cpp, Handles.cpp, Drag.cpp, LineSegments.cpp, Intersections.cpp.
//
// Its private machines are classes of their own: Observers, editor/Guides.h, GroupDrag.h and CrossingsWorker.h.
#pragma once

#include <vagrel/document/Events.h>
#include <vagrel/document/HostOperations.h>
#include <vagrel/document/Observers.h>
#include <vagrel/document/TFinally.h>
#include <vagrel/document/TItemHandle.h>
#include <vagrel/document/TKSSelectionValue.h>
#include <vagrel/foundation/TComponent.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vagrel {

class CrossingsWorker;
class GroupDrag;
class Guides;
class IKSLText;
class TBinaryReader;
class TBinaryWriter;
class TJsonObject;
class TMembers;
class TVGRBackSurf;
class TVGRBaseItem;
class TVGRBaseLibSymbol;
class TVGRBasePrintInfo;
class TVGRCounter;
class TVGRData;
class TVGRDimStyle;
class TVGRLayer;
class TVGRMapping;
class TVGRMeasure;
class TVGRSettings;
struct TIntSecPoint;
enum TItemTrait : std::uint8_t;
enum TVGRCmdKind : std::int32_t;
struct TKSLExtent;
struct TVGRCmd;
struct TVGRReceiver;
namespace detail {
class TCellIndex;
class TItemIndex;
class TUndoStacks;
struct TStateLog;
enum class TReplay : std::uint8_t;
} // namespace detail

/// A document. Abstract: a host derives its own, which constructs the items, reads and writes files, prints and
/// exports.
///
/// Lists are read by accessors that count from 1 and answer null outside; layers fall back to the first one. The
/// document belongs to one thread, the host's main thread.
class TVGRBaseLabel : public TComponent, public HostOperations {
public:
    template <class T>
    using TOwned = std::vector<std::unique_ptr<T>>;

    /// Always throws: a document is created as one of the host's descendants.
    [[noreturn]] static TVGRBaseLabel* Create(TComponent* owner);
    ~TVGRBaseLabel() override;

    /// Copies options, data, background, measure and the three folders of another document.
    void Assign(const TVGRBaseLabel& source);
    /// After the host has streamed properties in: language file, action, status texts, stored JSON.
    void Loaded() override;

    // Life of the document

    /// Clears everything and resets the measure.
    void New();
    void Clear(TKSLClearSet what, bool paint);
    /// Opens the reading of a whole document or of a paste: nothing is recorded, nobody is told.
    void BeginRead(bool paste);
    /// Resolves the references of what was read and tells the observers. Finishes its clearing also when stored JSON is
    /// bad.
    void EndRead(bool units);
    /// Opens an update bracket: what changes in it makes one undo step and one repaint. Brackets are flags, not
    /// counters.
    void BeginUpdate(bool paintOnEnd);
    void EndUpdate();
    void EndUpdateSelection();
    void Refresh();
    void PaintEditor();

    // Changes

    /// Tells the observers whom the change concerns; one outside the enumeration concerns nobody. All of them are told
    /// before the first exception of one goes on.
    void ChangeValue(TKSChange change);
    void ChangeState(TVagrelState state, TVGRBaseItem& item);
    TKSChangeValue GetChangedValue(TKSChange change) const;
    void AddState(TVagrelState state) { fStates.Put(state, true); }
    void RemoveState(TVagrelState state) { fStates.Put(state, false); }
    TVagrelStateOptions GetStates() const { return fStates; }
    bool HasAnyState(TVagrelStateOptions states) const { return fStates.HasAny(states); }
    /// Null and an observer that is attached already are ignored. An editor is told the size of the label at once.
    void Attach(IKSObserver* observer);
    void Detach(IKSObserver* observer);
    /// Sends the status texts to the host; with `checkEditors` only while an editor is attached.
    void FireInfoEvent(bool checkEditors);
    /// Asks the host to open the editor of the one selected item; false when it has none.
    bool DoDblClick();

    // Identifiers

    /// A new number for an item. They end at 2147483647, which is then given again.
    std::int32_t NextID();
    /// The number that `NextID` will give rises to at least `id`.
    void RaiseMaxID(std::int32_t id);
    /// True when another item than `item` has this identifier, without regard to case.
    bool RepeatID(std::u16string_view id, const TVGRBaseItem* item) const;
    /// By number or by identifier, without regard to case; null when absent. `scrollToView` selects it and scrolls
    /// there; null then also when one of those that are told has ended it.
    TVGRBaseItem* SearchItem(std::int32_t id, bool scrollToView);
    TVGRBaseItem* SearchItem(std::u16string_view id, bool scrollToView);
    void ScrollItem(TVGRBaseItem& item);
    TVGRBaseItem* ElementByID(std::u16string_view id, bool select);

    // Lists

    int ItemsCount() const { return int(fItems.size()); }
    TVGRBaseItem* GetItem(int index) const;
    const TOwned<TVGRBaseItem>& Preview() const { return fPreview; }
    /// The preview copies of a sheet cell in their order, without a walk over all of them.
    std::vector<TVGRBaseItem*> PreviewOf(int row, int column) const;
    int LayersCount() const { return int(fLayers.size()); }
    TVGRLayer& GetLayer(int index) const;
    /// The layer at a zero-based position of a file; the first one out of range.
    TVGRLayer& LayerAt(int position) const { return GetLayer(position < LayersCount() ? position + 1 : 1); }
    /// The zero-based position.
    int LayerIdx(const TVGRLayer& layer) const;
    std::vector<std::u16string> GetLayersNames() const;
    TVGRLayer& ActiveLayer() const;
    /// False when the layer at this one-based index is active already or does not exist.
    bool SetActiveLayer(int index);
    TVGRLayer& AddLayer();
    /// Moves the layer's items to the base layer and deletes it; false for the base layer and out of range.
    bool DeleteLayer(int index);
    /// False when one of them is the base layer or does not exist.
    bool ExchangeLayers(int index1, int index2);
    bool GetLayerZOrder() const { return fLayerZOrder; }
    void SetLayerZOrder(bool value);
    /// Sorts the items by their layers, stably, when layers decide the paint order.
    void SortItemsZLayer();
    /// Finds the topmost visible layer with a picture or a map.
    void CheckBackLayer();
    /// One-based; -1 for none.
    int GetIdxLayerBack() const { return fIdxBack; }
    bool HasBackMargins() const;
    /// Whether the picture of the background layer is still to be decoded: the document asks, and the host that has
    /// decoded it says so.
    bool GetNeedReadImg() const { return fNeedReadImg; }
    void SetNeedReadImg(bool value) { fNeedReadImg = value; }
    int DimStylesCount() const { return int(fDimStyles.size()); }
    TVGRDimStyle* GetDimStyle(int index) const;
    TVGRDimStyle& GetActiveDimStyle() const;
    bool SetActiveDimStyle(int index);
    int CounterCount() const { return int(fCounters.size()); }
    TVGRCounter* GetCounter(int index) const;
    int SymbolCount() const { return int(fSymbols.size()); }
    TVGRBaseLibSymbol* GetSymbol(int index) const;
    const TOwned<TVGRBaseLibSymbol>& Symbols() const { return fSymbols; }
    /// The symbol that the symbol tool places: the one that was found or chosen last, null for none.
    TVGRBaseLibSymbol* GetCurrentLibSym() const { return fCurrentLibSym; }
    void SetCurrentLibSym(TVGRBaseLibSymbol* symbol) { fCurrentLibSym = symbol; }
    /// What comes before a binary document is written: unused symbols go. There are none until a library gives some.
    void CleanLibray() {}
    int SelectionCount() const { return int(fSelection.size()); }
    TVGRBaseItem* GetSelection(int index) const;
    bool IsInSelection(std::int32_t id) const;
    bool Selected(const TVGRBaseItem& item) const;
    /// Appends to the selection; `notify` tells the observers.
    void AddToSelection(TVGRBaseItem& item, bool notify);
    void ClearSelection(bool notify);
    /// The text of the first selected item when it is a text or a rich text, else null.
    IKSLText* GetTextObject() const;
    /// Takes in the extent of every item that is visible and exported; limits below 0 become 0.
    void CheckFit(TKSLExtent& extent) const;

    // Ownership: what belongs to a document hands itself over when it is constructed and takes itself out when it dies.

    // It says so before it changes, too.

    void Adopt(TVGRBaseItem& item);
    void Forget(TVGRBaseItem& item);
    void Touch(TVGRBaseItem& item);
    /// Its number or identifier, or the cell of a preview copy, is about to change.
    void Renaming(TVGRBaseItem& item);
    void Placing();
    void Touch(TVGRLayer& layer);
    void Touch(TVGRDimStyle& style);
    void Touch(TVGRCounter& counter);
    void TouchData();
    void Adopt(TVGRLayer& layer);
    void Forget(TVGRLayer& layer);
    void Adopt(TVGRDimStyle& style);
    void Forget(TVGRDimStyle& style);
    void Adopt(TVGRCounter& counter);
    void Forget(TVGRCounter& counter);

    // Units and values. "Restricted" quantities are shown in millimetres when the document's unit is larger than a
    // centimetre.

    TKSLUnits GetUnits() const { return fUnits; }
    /// In emLabelling and emFlowChart units larger than a centimetre fall back to millimetres.
    void SetUnits(TKSLUnits value);
    std::int64_t SetVal(float value, bool restricted) const;
    float GetVal(std::int64_t base, bool restricted) const;
    std::int64_t SetValMM(float mm) const;
    std::int64_t BaseAsMM(float mm) const { return SetValMM(mm); }
    /// Base units to millimetres on paper.
    float GetValMM(std::int64_t base) const { return float(ToPaper(double(base))); }
    /// The same in double, for places computed in double.
    double ToPaper(double base) const;
    /// A length of base coordinates as whole pixels on paper.
    std::int64_t ToPixels(std::int64_t base, int dpi) const;
    /// Millimetres to the document's unit.
    float BaseValue(float mm) const;
    float GetValFromMM(float mm) const { return BaseValue(mm); }
    float UnitValue(float value, bool restricted) const;
    /// 2 mm on paper in base coordinates: the offset of a paste.
    std::int64_t BaseMoveInc() const;
    float GetDrawValue(float value, int dpi) const;
    float GetDrawValue(std::int64_t base, int dpi) const;
    float GetDataDrawValue(float value, int dpi) const;
    std::int64_t GetPrintValue(float value, int dpi) const;
    std::int64_t GetPrintFromBase(std::int64_t base, int dpi) const;
    float GetDataPrintValue(float px, int dpi) const;

    // Properties

    bool GetEditable() const { return fEditable && fEditorMode != emInteractive; }
    void SetEditable(bool value) { fEditable = value; }
    bool GetShowDispWidthHandle() const { return fShowDispWidthHandle; }
    void SetShowDispWidthHandle(bool value) { fShowDispWidthHandle = value; }
    TKSLEditorMode GetEditorMode() const { return fEditorMode; }
    void SetEditorMode(TKSLEditorMode value);
    /// True in emDrawing and emInteractive, where the draw scale may differ from 1 and dimension styles are stored.
    bool HasDrawScale() const { return fEditorMode == emDrawing || fEditorMode == emInteractive; }
    TVagrelOptions GetOptions() const { return fOptions; }
    void SetOptions(TVagrelOptions value) { fOptions = value; }
    /// Whether coordinates of points from 16384 document units on, where single precision ends to hold three decimals,
    /// are written to JSON and read from it in double; off at first.
    bool GetExactJson() const { return fExactJson; }
    void SetExactJson(bool value) { fExactJson = value; }
    /// Whether a rectangle over one text opens its editor only in a document that can be edited; off at first.
    bool GetGuardedTexts() const { return fGuardedTexts; }
    void SetGuardedTexts(bool value) { fGuardedTexts = value; }
    bool GetModified() const { return fModified; }
    void SetModified(bool value) { fModified = value; }
    bool GetUpdate() const { return fUpdate; }
    std::int32_t GetReadedVersion() const { return fReadedVer; }
    TKSLAngle GetAngle() const { return fAngle; }
    TKSLEdAction GetAction() const;
    TKSLEdState GetEditorState() const;
    const std::u16string& GetLanguageFileName() const { return fLngFileName; }
    void SetLngFileName(std::u16string_view value);
    const std::u16string& GetImageFolder() const { return fImageFolder; }
    void SetImageFolder(std::u16string_view value) { fImageFolder = value; }
    const std::u16string& GetOpenImgFolder() const { return fOpenImgFolder; }
    void SetOpenImgFolder(std::u16string_view value) { fOpenImgFolder = value; }
    const std::u16string& GetLibraryFolder() const { return fLibraryFolder; }
    void SetLibraryFolder(std::u16string_view value) { fLibraryFolder = value; }
    /// The image folder; a relative one lies in the folder of the running program.
    std::u16string GetAbsoluteImagePath() const;

    TVGRMeasure& GetMeasure() { return *fMeasure; }
    const TVGRMeasure& GetMeasure() const { return *fMeasure; }
    TVGRBackSurf& GetBackSurf() { return *fBackSurf; }
    const TVGRBackSurf& GetBackSurf() const { return *fBackSurf; }
    TVGRSettings& GetSettings() { return *fSettings; }
    const TVGRSettings& GetSettings() const { return *fSettings; }
    TVGRMapping& GetMapping() { return *fMapping; }
    const TVGRMapping& GetMapping() const { return *fMapping; }
    TVGRData& GetData() { return *fData; }
    const TVGRData& GetData() const { return *fData; }
    TVGRBasePrintInfo& GetPrintInfo() { return *fPrintInfo; }
    const TVGRBasePrintInfo& GetPrintInfo() const { return *fPrintInfo; }
    /// Copy the values of another object.
    void SetMeasure(const TVGRMeasure& value);
    void SetBackSurf(const TVGRBackSurf& value);
    void SetSettings(const TVGRSettings& value);
    void SetMapping(const TVGRMapping& value);
    void SetData(const TVGRData& value);

    // Undo. Setters record each change; what happens in an update bracket is one step, everything else a step of its
    // own.

    bool IsUndoEmpty() const;
    bool IsRedoEmpty() const;
    /// One step back or forth; nothing on an empty stack. Observers are asked to repaint once.
    void Undo();
    void Redo();
    /// The number of the step that the next command belongs to.
    std::int32_t UnReID();
    /// Keeps the state of a property that is about to change. Items call it through TVGRCmd.h.
    /// False when the item ended in the event that tells of it.
    bool Record(TVGRBaseItem& item, TVGRCmdKind kind, std::int32_t index);
    /// The name and author of a transaction that is undone or redone next; empty for other steps.
    std::u16string UndoName() const;
    std::u16string RedoName() const;
    std::u16string UndoAuthor() const;
    std::u16string RedoAuthor() const;
    bool InTransaction() const;
    /// True while a step is undone or redone; a second one does nothing then.
    bool IsReplaying() const { return fStepping; }

    // Selection and arrangement. What moves through base units is recorded; a command that arranges is one step. Where
    // a result is given, false says that nothing moved.

    /// The first selected item, the reference of the commands that arrange; null for none.
    TVGRBaseItem* Select() const { return GetSelection(1); }
    /// The item alone; null is ignored.
    void SetSelection(TVGRBaseItem* item, TKSLItemState state);
    /// From the selected item to the next or prior one that can be picked; false at the end of the list.
    bool SelectNext();
    bool SelectPrior();
    /// Left (1), right (2), top (3) or bottom (4) of the one selected item in the document's unit; else -1.
    float SizeSelection(int side) const;
    /// The same of all selected items together, in base units; -1 for none.
    std::int64_t SelectionBounds(int side) const;
    /// Takes the item out of the document. Links to it that move with the selection go too, without a command.
    /// `removeSelection` tells the observers when the item was selected.
    void DeleteItem(TVGRBaseItem& item, bool removeSelection);
    void DeleteSelection();
    /// Takes a point, from 1, out of the first selected item. Not recorded.
    bool DeletePoint(int index);
    /// Writes the selection to the document's own clipboard. Throws EOutOfRange for an item that the binary form cannot
    /// hold; the clipboard is as before then.
    void CopySelection();

    // `refLines` also searches the guides. `checkBounds` keeps the whole selection on the page.

    /// In the document's unit; not recorded.
    bool MoveSelection(float ax, float ay, bool refLines, bool checkBounds);
    /// Moves one side, moLeft to moBottom, of the items that can be resized. In the document's unit; not recorded.
    bool MoveSize(float value, TKSLMoveOpt side, bool refLines, bool checkBounds);
    bool MoveBaseSelection(std::int64_t bx, std::int64_t by, bool refLines, bool checkBounds);
    /// Each item goes to the grid where `gx`, `gy` are positive.
    bool MoveBaseGridSelection(std::int64_t gx, std::int64_t gy, std::int64_t bx, std::int64_t by, bool refLines,
                               bool checkBounds);
    /// All by the shortest way that takes one of them to its next grid line.
    bool MoveBaseGridSelection(std::int64_t gx, std::int64_t gy, bool right, bool down, bool refLines);
    /// Moves the sides that the option names; with a positive grid value each to a line of the grid.
    bool MoveBaseSize(std::int64_t bx, std::int64_t by, std::int64_t gx, std::int64_t gy, TKSLMoveOpt option,
                      bool refLines, bool checkBounds);

    /// Takes one edge of all others to that of the first.
    void AlignObjects(TKSLObjectAlign edge);
    /// The others on the middle of the first; a single item on the middle of the label.
    void CenterHorizontal() { CenterSelection(anHorz); }
    void CenterVertical() { CenterSelection(anVert); }
    /// Sorts the selection along the axis and sets it apart by a gap in the document's unit, or evenly between the
    /// first and the last for -1. Needs three items; a single one goes to the middle of the label.
    void SpaceHorizontal(float gap) { SpaceSelection(anHorz, gap); }
    void SpaceVertical(float gap) { SpaceSelection(anVert, gap); }
    void SameWidth() { SameSize(anHorz); }
    void SameHeight() { SameSize(anVert); }
    /// Turn the label with all its items by a quarter; only in emLabelling. Not recorded.
    void RotateLeft() { Turn(true); }
    void RotateRight() { Turn(false); }
    /// The first selected item to an end of the items. Not recorded.
    void SendToBack() { MoveInZOrder(false); }
    void BringToFront() { MoveInZOrder(true); }

    // Data

    /// Prepares a merge: finds what the items to be printed are bound to, opens the source and counts labels and pages.
    /// The answers to questions are given behind it. Throws EVagrel for a missing CSV file, and what the parser throws.
    virtual void CheckPrintData();
    /// One label on.
    void NextData();
    /// Moves to the first label of a page, from 1; with `check` nothing moves when that page is current, unless it is
    /// page 1. `fillData` also fills the preview copies, which moves on to the next page's first label.
    void GoToPage(std::int32_t page, bool fillData, bool check);
    /// Fills the preview copies of each cell from the current label on; nothing when the page was filled last.
    void FillDataPage(std::int32_t page);
    /// The value of a binding for the current label; `format` is a number or date pattern and may be empty. A field,
    /// list or question that is unknown gives its name, a counter an empty text.
    std::u16string DataValue(std::u16string_view name, std::u16string_view format, TKSLFillType type) const;
    /// 0 for a text that is no number.
    std::int32_t DataIntValue(std::u16string_view name, TKSLFillType type) const;
    float DataNumValue(std::u16string_view name, TKSLFillType type) const;
    /// Stores the bytes of a picture field; false when there are none.
    bool DataGraphic(std::u16string_view name, std::string& stream) const;
    /// Without regard to case; null, or an empty text, when absent.
    TVGRCounter* FindCounter(std::u16string_view name) const;
    std::u16string CounterValue(std::u16string_view name) const;
    /// True when another counter than `counter`, which may be null, has the name.
    bool CounterName(std::u16string_view name, const TVGRCounter* counter) const;
    /// Unbinds its items and deletes it; false when it is not one of the document's.
    bool RemoveCounter(TVGRCounter* counter);
    // Names to choose a binding from, each with the symbol of its kind in front, or bare. Where `data`, the present
    // choice, is not empty, the entry that unassigns it comes first.
    std::vector<std::u16string> GetDataFields(std::u16string_view data, bool addCounters) const;
    std::vector<std::u16string> GetImgFields(std::u16string_view data, bool incSymbol) const;
    std::vector<std::u16string> GetIntFields(std::u16string_view data, bool incSymbol, bool addCounters) const;
    std::vector<std::u16string> GetNumFields(std::u16string_view data, bool incSymbol, bool addCounters) const;
    std::vector<std::u16string> GetTxtFields(std::u16string_view data, bool incSymbol) const;
    std::vector<std::u16string> GetDetailFields(std::u16string_view data, std::u16string_view detailName) const;
    std::vector<std::u16string> GetDetails(bool incSymbol) const;
    /// The selected source as "¬NAME" and its details as ":NAME".
    std::vector<std::u16string> GetDataDetails(std::u16string_view data, bool incSymbol) const;
    /// The fields of a source or detail named as in `GetDataDetails`.
    std::vector<std::u16string> GetMasterDetailFields(std::u16string_view symName, bool incSymbol,
                                                      bool excludeImg) const;

    // Editor: actions. The host forwards its events; `TAct` is the action that runs. A tool that this host cannot
    // construct throws what its factory throws; the action is reset then and nothing is recorded.

    /// Begins an action. eaEdText needs a selected text and resets without one; eaSymbol asks the host for a symbol.
    void SetAction(TKSLEdAction action);
    /// Begins eaFlow with an outline.
    void FlowAction(TKSLFlowType type);
    /// Begins eaLink or eaPolyLink with a route.
    void LinkAction(TKSLinkType type);
    /// Escape: back to selection with nothing selected.
    void ResetAction();
    /// Leaves the last tool for selection, and selection for the last tool.
    void LastAction();
    /// The left button goes down. The ends of a link are given as the number of the item and the anchor. A document
    /// that is not editable only selects.
    void PickEditor(std::int64_t bx, std::int64_t by, std::int32_t gap, TShiftState shift, bool refLines);
    /// A radius was typed in while one is waited for.
    void PickEditor(std::int32_t radius, TShiftState shift, bool refLines);
    /// The left button goes up.
    void UpEditor(std::int64_t bx, std::int64_t by);
    /// The right button goes down: ends a chain of points or a choice of references, adds a vertex to the selected
    /// chain (not recorded), or leaves the action, which is all that it does in a document that is not editable.
    void RightButton(std::int64_t bx, std::int64_t by, std::int64_t gap, TShiftState shift);
    /// Hides the first selected item and has the host open it in its text editor; nothing without a selection.
    void EditSelText();
    /// The segment, from 1, of a line, dimension, polyline or polygon that lies nearest to a place; false for other
    /// items.
    bool GetItemLineSegmentIndex(const TVGRBaseItem& item, std::int64_t bx, std::int64_t by, int& index,
                                 TKSLRefLine& segment) const;
    bool GetItemLineSegment(const TVGRBaseItem& item, std::int64_t bx, std::int64_t by, TKSLRefLine& segment) const;

    // Editor: picking, handles, drags, crossings. Places are base coordinates and `gap` is the tolerance of the pointer
    // in base units. Searches go from the top item down, over what is visible and selectable.

    /// A click: selects what lies there, or picks it up when it is selected already; Shift adds and takes out. A miss
    /// clears the selection. With `refLines` the guides are filled. False for a miss.
    bool SearchSelection(std::int64_t bx, std::int64_t by, std::int64_t gap, TShiftState shift, bool refLines);
    /// Picks a line-like reference into the selection or out of it; with `apply` runs the geometry action on what lies
    /// there. False when nothing was hit or changed.
    bool SearchRef(std::int64_t bx, std::int64_t by, std::int64_t gap, TShiftState shift, bool apply);
    /// Adds to the selection what lies in the rectangle, or with `cross` what it meets. False when nothing was added.
    bool SearchRectangle(const TKSLRect& rect, bool cross);
    /// The selection rectangle that was drawn last; empty before the first.
    const TKSLRect& GetSelectionRect() const { return fRect; }
    /// Puts centre and radius of the lowest circle there, hidden ones included, into slot 1 of the running action.
    bool SearchCircleAt(std::int64_t bx, std::int64_t by, std::int64_t gap);
    /// The anchor that a link would attach to. The positions that `link` holds stay except at the first pick.
    bool SearchLink(std::int64_t ax, std::int64_t ay, TKSLink& link) const;
    /// Picks up the first selected item when it lies there: the drag of a text in edit.
    bool SearchSelectedText(std::int64_t ax, std::int64_t ay, std::int64_t gap, TShiftState shift);
    /// `inside` also accepts the interior of closed shapes; false for no item.
    bool PickItem(TVGRBaseItem* item, std::int64_t bx, std::int64_t by, std::int64_t gap, bool inside) const;
    /// The point of kind `snap` that a pointer there snaps to. Crossings are those that were published last.
    bool SearchPoint(std::int64_t ax, std::int64_t ay, std::int64_t gap, TKSLSnap snap, TKSLRef& ref,
                     bool excludeSelected) const;
    /// One pick of the trim, extend, join and equidistant actions. Throws ENotAvailable and resets the action: they are
    /// not available yet.
    bool UpdateCurAction(TVGRBaseItem& item, std::int64_t bx, std::int64_t by);

    /// Guides along which the one selected item is aligned with others, four at most.
    void FillRefLines();
    void ResetRefLines();
    int NumRefLines() const;
    /// From 1; all zero outside.
    TKSLRefLine GetRefLine(int index) const;
    /// Collects the links that are attached to selected items.
    void FillLinkList();

    int SelPointCount() const { return int(fSelPoint.size()); }
    /// From 1; an empty one outside.
    TKSSelectionValue GetSelPoint(int index) const;
    /// Rebuilds the handles of the selection.
    void FillSelPoints();
    /// Rebuilds them in the form for picked references.
    void FillRefPoints();

    /// One step of a drag that `TAct::SetMove` opened, or of an arrow key. Objects and box handles read `bx`, `by` as
    /// the step with its sign reversed and `grX`, `grY` as the steps of the grid; the other handles read the pointer's
    /// place and, where positive, its place on the grid. Records what moves. Nothing moves in a document that is not
    /// editable, by this and the next one.
    void MoveEditor(std::int64_t bx, std::int64_t by, std::int64_t grX, std::int64_t grY, bool refLines,
                    bool fromKeyboard);
    /// One step of a drag with the grid on, to the grid point nearest to the pointer; false when nothing moved. With
    /// several items the first step only notes where they were grabbed.
    bool MoveGridEditor(std::int64_t bx, std::int64_t by, std::int64_t grX, std::int64_t grY, bool refLines);
    /// The point of the first selected item that the action drags. With a grid to `gx`, `gy`; a coordinate of -1, and
    /// one off the page, stays.
    bool MoveBasePoint(std::int64_t bx, std::int64_t by, std::int64_t gx, std::int64_t gy, bool refLines,
                       bool checkBounds);

    /// Starts a computation of all crossings of visible items on a worker; nothing while one runs, and on another
    /// thread than the main one. The worker reports through the queue of the main thread, which the host pumps.
    void CheckIntersetions();
    /// True from the start of a computation until its end was reported.
    bool GetComputActive() const;
    /// Whether a request during a computation is made when that has reported, and undo and redo make one too. Without
    /// it, the default, the crossings may stay behind until the next edit.
    bool GetFreshCrossings() const;
    void SetFreshCrossings(bool value);
    /// The crossings that were published last, in rising pairs of items.
    std::vector<TIntSecPoint> GetIntersections() const;
    void RemoveElementFromIntersections(std::int32_t id);

    // Title block, files, export

    /// Writes the drawing's title block out of the measure: all of it with `reset`, else the three texts.
    void FillBoxLayer(bool reset);
    /// The whole document as a tree.
    std::unique_ptr<TJsonObject> GetJson() const;
    std::u16string GetJsonString(bool compact) const;
    /// Reads everything but "PrintInfo" and "Items", which the host reads.
    void ReadJson(TJsonObject& json);
    /// The first block of the binary form: version, mode, units, angle and the sub-objects.
    void WriteBaseData(TBinaryWriter& writer) const;
    /// Stores what the block holds, with no setter. Throws EStreamError at the end of the data.
    void ReadBaseData(TBinaryReader& reader);
    /// The second block: layers, dimension styles, counters. The host's symbols and items follow it.
    void WriteData(TBinaryWriter& writer) const;
    void ReadData(TBinaryReader& reader);
    /// The document as an SVG text in UTF-8.
    /// `portable` sets texts by their baseline, which every renderer places the same; it needs measured texts.
    std::string SVG(TKSLExportSVG type, float factor, bool attrID, bool portable = false) const;
    /// The sheet of the page that `GoToPage` went to: the label in every cell that the page uses, with the preview
    /// copies of the cell for the items that are bound to data.
    std::string SheetSVG(TKSLExportSVG type, float factor, bool attrID, bool portable = false) const;
    /// Writes the same text as `SVG` to a file, whole or not at all. Throws EStreamError.
    void SaveSVG(std::u16string_view filename, TKSLExportSVG type, float factor, bool attrID,
                 bool portable = false) const;

    // Events

    TKSLInfoMsgEvent OnInfoMsg;
    TKSLGetFontListEvent OnGetFontList;
    TKSLUndoRedoEvent OnUndoRedo;
    TKSLReadSymEvent OnReadSym;
    TKSLSelectItem OnSelectItem;
    TKSLSelectItem OnUnSelectItem;
    TNotifyEvent OnLabelRotate;
    TKSLGMLCoordinateTransformEvent OnGMLCoordinateTransform;
    TNotifyEvent OnBeforePrint;
    TNotifyEvent OnAfterPrint;

protected:
    /// Creates the sub-objects and the first layer and dimension style.
    explicit TVGRBaseLabel(TComponent* owner);

    /// Put an object of the host's class in the place of the document's own, for which it was made. It takes over the
    /// values, so that steps of undo and open transactions go on; references to the former end. Null is ignored.
    void TakeBackSurf(std::unique_ptr<TVGRBackSurf> own);
    void TakePrintInfo(std::unique_ptr<TVGRBasePrintInfo> own);
    /// What an import waits for between `ComposeImage` and the finished picture.
    struct TAwaitedMap {
        bool pending = false;
        TKSLGMLMapTarget target = gmtLayerBackground;
        TVGRLayer* mapLayer = nullptr;
        TVGRLayer* parcelLayer = nullptr;
        std::int64_t drawScale = 0;
        TKSLUnits units = unMM;
        std::int64_t width = 0, height = 0; ///< base units
    };
    TAwaitedMap fAwaitedMap;
    /// Ends everything that belongs to the document; a second call does nothing. A host whose items use what the host
    /// owns calls it first in its own destructor. While it runs nobody is told of anything.
    void Teardown();
    void Notification(TComponent* component, TOperation operation) override;
    /// The road of creation: `construct` makes an item, `initialise` finishes it, and then the creation is told to
    /// `OnUndoRedo`. When one of the three throws nothing is left of the item. Throws EInvalidOperation when the event
    /// has ended the item. An item that is made by a plain `new` is told with the next recording, the end of a bracket
    /// or a step.
    TVGRBaseItem& NewItem(const std::function<TVGRBaseItem&()>& construct,
                          const std::function<void(TVGRBaseItem&)>& initialise = {});
    /// Takes an item out of every list and destroys it.
    void FreeItem(TVGRBaseItem& item);
    /// Reads a whole document, all or nothing: `read` runs in the bracket of a full read, over a document as it is
    /// made. When it throws, the document that stood before stands again, with its handles and its undo; then the
    /// exception goes on. Folders, options, language, the host's data sources, clipboard and printer stay in any case.
    void ReadWhole(const std::function<void()>& read);
    /// The steps of a paste; nothing for an empty clipboard. `read` constructs the next item and lets it read itself,
    /// each of which is selected then. Not recorded.
    void ReadClipboard(const std::function<void(std::int32_t version, TBinaryReader& reader)>& read);

private:
    friend class UpdateScope;
    enum class TScope : std::uint8_t {
        Nested, ///< inside another scope: opens and closes nothing
        Inner,  ///< inside a bracket of the host, whose step and bracket go on behind it
        Whole
    };
    TScope OpenScope(bool paintOnEnd);
    void CloseScope(TScope scope);
    void CloseBracket();
    void CalcPending();
    void FinishUpdate();
    void TellUnselected();
    /// Resolves what items refer to by stored numbers.
    void AssignSymbolAndFlowLinks();
    /// Arrow lines that show the unit measure themselves again; true when there is one.
    bool CheckNeedDrawUnits();
    void ClearSelectionLists();
    void DropCalcs();
    void FreeItems(TOwned<TVGRBaseItem>& items);
    void AddBaseLayer();
    void AddBaseStyle();
    /// Frees the layer at a zero-based position. Its items go to the base layer, those of the base layer to the next.
    void FreeLayer(std::size_t position);
    /// Makes room for a file of this mode.
    void ClearForRead(TKSLEditorMode mode);
    /// Ends what stood in for the layers and styles of the file.
    void DropStandIns();
    bool IsLargeUnit() const { return fUnits >= unDM && fUnits <= unYd; }
    void SelectOnly(TVGRBaseItem& item, TKSChange change);
    TVGRBaseItem* Found(TVGRBaseItem& item, bool scrollToView);
    void FillBoxTexts();
    void FillBoxItems(TVGRLayer& layer);

    // Transactions

    friend class Transaction;
    using TLog = std::shared_ptr<detail::TStateLog>;

    TLog OpenLog();
    bool HasLog(const TLog& log) const;
    /// Ends the innermost log. True when a step was left; nothing when it has ended.
    bool CommitLog(const TLog& log, bool isTransaction);
    /// Takes back the innermost one.
    void RollBackLog();
    /// Takes back those inside of a log, and with `itself` that one. Throws what observers throw, when all is done.
    void RollBackLogs(const TLog& log, bool itself);
    /// Ends all of them without a step.
    void DropLogs();
    using TReceivers = std::vector<std::shared_ptr<TVGRReceiver>>;
    /// Exchanges what a log keeps with what stands, which puts the log on the other side of the change. No code of the
    /// host runs in it. Answers the items that came or went.
    TReceivers ExchangeState(detail::TStateLog& log);
    /// Resolves references and tells of such an exchange.
    void TellExchanged(const detail::TStateLog& log, const TReceivers& receivers);
    TReceivers RestoreLog(detail::TStateLog& log);
    void ReadBracket(const std::function<void()>& read);
    void ResetParts();
    /// The document's own fields and those of its single parts.
    void PageMembers(TMembers& members);
    /// Takes an element out of its list, for a log or for good.
    template <class T>
    void TakeOutPart(TOwned<T>& list, std::size_t index);
    template <class T>
    void ShrinkParts(TOwned<T>& list, std::size_t count);
    void ItemsReordering();
    void Unlist(TVGRBaseItem& item);
    void ParkItem(TVGRBaseItem& item);

    using TReplay = detail::TReplay;

    void Step(TReplay direction);
    void ReplayStep(TReplay direction, std::vector<TVGRCmd>& from);
    void Replay(const TVGRCmd& command, TReplay direction);
    void Revive(const TVGRCmd& deletion, TReplay direction);
    void TakeBack(std::vector<TVGRCmd>& opposites, std::size_t before);
    void Discard(const TVGRCmd& creation);
    /// What is shown and told behind a step.
    void ShowStep();
    void ForgetCommands(TVGRBaseItem& item);
    void ClearCommands();
    void TellUndoRedo();
    void TellOwed();

    // Selection and arrangement

    bool SelectNeighbour(bool forward);
    void CalcLinks();
    /// The items whose inner layout follows a move, and the links.
    void Recalculate();
    bool MoveAllBy(std::int64_t bx, std::int64_t by, std::int64_t gx, std::int64_t gy, bool refLines);
    void CenterSelection(TKSLAlignType axis);
    void SpaceSelection(TKSLAlignType axis, float gap);
    void SortSelection(TKSLAlignType axis);
    void SameSize(TKSLAlignType axis);
    void Turn(bool left);
    void MoveInZOrder(bool front);

    // Editor: actions

    struct TPress;
    /// Makes the item of the action from its picks, selects it and ends the action. `typed` is for a radius that was
    /// typed in.
    void Construct(TShiftState shift, bool typed);
    void ConstructAngle();
    void EndRectangle(std::int64_t bx, std::int64_t by);
    void EndDrag();
    void EndTextDrag();
    void EndReferences();
    bool InsertVertex(std::int64_t bx, std::int64_t by, std::int64_t gap);

    // Editor: picking, handles, drags, crossings

    /// The topmost item that is visible, selectable and `wanted`; null for none. All searches by place come here, so
    /// that an index of places can stand here.
    template <class Wanted>
    TVGRBaseItem* TopItem(Wanted wanted) const;
    /// Takes an item out of the selection and tells the host.
    void Unselect(TVGRBaseItem& item);
    /// Tells of a new selection; a single text of the given types that is not bound to data is opened instead.
    void SelectionPicked(TKSLSet<TItemTrait> texts);
    /// A step of the drag; false when nothing moved. `DragRadius` and `DragShape` take the pointer's place.
    bool Drag(std::int64_t bx, std::int64_t by, std::int64_t grX, std::int64_t grY, bool refLines);
    bool DragRadius(TKSLPto pointer);
    bool DragShape(TKSLPto pointer);

    // Data
    void ActivateBindings();
    void GoToLabel(std::int64_t label);
    void WalkToLabel(std::int64_t label);

    // What items call while they are destroyed stands before their lists, and outlives them.
    std::unique_ptr<detail::TItemIndex> fIndex;
    std::unique_ptr<detail::TCellIndex> fCells;
    std::unique_ptr<detail::TUndoStacks> fStacks;
    std::vector<TLog> fLogs; ///< of open transactions, the innermost last
    Observers fObservers;
    std::unique_ptr<Guides> fGuides;
    std::unique_ptr<GroupDrag> fGroupDrag;
    std::unique_ptr<CrossingsWorker> fCrossings;
    bool fEditable = true;
    bool fShowDispWidthHandle = false;
    TKSLEditorMode fEditorMode = emLabelling;
    TOwned<TVGRLayer> fLayers;
    std::int32_t fActiveLayer = 0;
    bool fLayerZOrder = false;
    TOwned<TVGRDimStyle> fDimStyles;
    std::int32_t fActiveDimStyle = 0;
    TOwned<TVGRBaseItem> fItems;
    TOwned<TVGRBaseItem> fPreview;
    TOwned<TVGRBaseLibSymbol> fSymbols;
    TKSLUnits fUnits = unMM;
    std::unique_ptr<TVGRBasePrintInfo> fPrintInfo;
    std::unique_ptr<TVGRData> fData;
    std::unique_ptr<TVGRMeasure> fMeasure;
    std::unique_ptr<TVGRMapping> fMapping;
    std::unique_ptr<TVGRBackSurf> fBackSurf;
    std::unique_ptr<TVGRSettings> fSettings;
    std::int32_t fReadedVer = 0;
    bool fUpdate = false;
    TVagrelOptions fOptions{loUniqueID, loUndoRedo};
    bool fExactJson = false;
    bool fGuardedTexts = false;
    std::vector<TVGRBaseItem*> fSelection;
    std::vector<TVGRBaseItem*> fLinks;
    std::vector<TVGRBaseItem*> fCalcs;
    std::size_t fCalcAt = 0; ///< how many of them were calculated
    int fScopes = 0;
    TOwned<TVGRCounter> fCounters;
    std::vector<TKSSelectionValue> fSelPoint;
    std::u16string fLngFileName;
    TKSLSInfo fInfo;
    std::u16string fImageFolder, fOpenImgFolder, fLibraryFolder;
    TKSChangeValue fChangeVal;
    TVGRBaseLibSymbol* fCurrentLibSym = nullptr;
    TKSLRect fRect;
    bool fStepping = false;
    std::exception_ptr fStepFault;
    int fCreating = 0;      ///< items that are half built
    bool fTellOwed = false; ///< the stacks have changed and nobody was told yet
    bool fUndoOpt = false;
    std::int32_t fMaxID = 1;
    bool fModified = false;
    TVagrelStateOptions fStates;
    std::int32_t fIdxBack = -1;
    bool fNeedReadImg = false;
    TKSLAngle fAngle = ag0;
    std::string fMemCopy;
    bool fDestroying = false;
};

} // namespace vagrel
