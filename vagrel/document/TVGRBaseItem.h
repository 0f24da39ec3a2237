// SPDX-License-Identifier: MIT
// The base of every drawable thing in a document: identity, points, the style common to all, and the frame of
// persistence.
#pragma once

#include <vagrel/document/Capabilities.h>
#include <vagrel/document/TMembers.h>
#include <vagrel/document/TVGRCmd.h>
#include <vagrel/foundation/Crossings.h>
#include <vagrel/foundation/ItemTypes.h>
#include <vagrel/svg/TSVGOutput.h>

#include <memory>
#include <type_traits>

namespace vagrel {

class TBinaryFields;
class TBinaryReader;
class TBinaryWriter;
class TJsonArray;
class TJsonFields;
class TJsonObject;
class TVGRBaseLabel;
class TVGRLayer;
struct TVGRReceiver;

/// The printable extent of items in base units. A limit of -1 has no value until the first point is taken in; from then
/// on -1 is a place like any other.
struct TKSLExtent {
    std::int64_t minX = -1, maxX = -1, minY = -1, maxY = -1;

    /// Takes in the square of side 2 × `by` around a point.
    void Widen(std::int64_t x, std::int64_t y, std::int64_t by);

private:
    bool fHasValues = false;
};

/// Which points of an item form a chain of straight segments, counted from 1; `first` is 0 for none.
struct TKSLChain {
    int first = 0;
    int last = 0;
    bool closed = false;
};

/// What follows a stored value. It comes last in a setter: observers are told, and what they do may end the item.
enum class TFollow : std::uint8_t {
    None,
    Modified, ///< `StateModified`
    Update,   ///< `StateUpdate`
    Bounds,   ///< `UpdateBounds`, then `StateUpdate`
    Calc      ///< `StateCalc`
};

/// An item of a document. An item adopts itself into its document when it is constructed; the document owns it from
/// then on and is told by the base destructor, so that no list keeps a dead item. Points count from 1.
class TVGRBaseItem : public IKSLStroke {
public:
    TVGRBaseItem(const TVGRBaseItem&) = delete;
    TVGRBaseItem& operator=(const TVGRBaseItem&) = delete;
    virtual ~TVGRBaseItem();

    // Identity

    TVGRBaseLabel& KSLab() const { return fOwner; }
    /// Number, unique in the document: the key of links and commands.
    std::int32_t GetInID() const { return fInID; }
    void SetInID(std::int32_t value) { PutName(fInID, value); }
    const std::u16string& GetID() const { return fID; }
    /// Stores the trimmed text. Throws EInvalidOperation when identifiers must be unique and another item has this one.
    void SetID(std::u16string_view value);
    /// Stores an identifier that the system gives, without the test.
    void SetFixedID(std::u16string_view value) { PutName(fID, value); }
    /// The default identifier: the type's name and the number with at least three digits.
    void SetName();
    TKSLItemType GetItemType() const { return fItemType; }
    const TItemTypeRow& TypeRow() const { return ItemTypeRow(fItemType); }
    bool HasTrait(TItemTrait trait) const { return vagrel::HasTrait(fItemType, trait); }
    TKSLItemState GetState() const { return fState; }
    void SetState(TKSLItemState value) { fState = value; }
    bool GetResize() const { return fResize; }
    bool FromPreview() const { return fFromPreview; }

    // Style

    TAlphaColor GetColor() const override { return fColor; }
    void SetColor(TAlphaColor value) override;
    /// Millimetres on paper.
    float GetPenWidth() const override;
    /// Millimetres on paper. Records the change; asks for no repaint.
    void SetPenWidth(float mm) override;
    std::int32_t BasePenWidth() const { return fPenWidth; }
    /// Base units on paper, stored without a command.
    void StorePenWidth(std::int32_t value) { Put(fPenWidth, value); }
    /// All points in base units, stored without a command.
    void StorePoints(TKSLPtoA value) { Put(fPoints, std::move(value)); }
    TKSLayerOpts GetOptions() const { return fOptions; }
    void SetOptions(TKSLayerOpts value) { Put(fOptions, value); }
    TVGRLayer& GetLayer() const { return *fLayer; }
    /// Also sorts the document's items when layers decide the paint order.
    void SetLayer(TVGRLayer& value);
    /// Stores the layer and nothing more.
    void StoreLayer(TVGRLayer& value) { Put(fLayer, &value); }
    virtual TKSLAngle GetAngle() const { return fAngle; }
    virtual void SetAngle(TKSLAngle value);
    /// True when the item and its layer both have all of `options`.
    bool Shows(TKSLayerOpts options) const;

    // Points

    virtual int NumPoints() const { return int(fPoints.size()); }
    const TKSLPtoA& Points() const { return fPoints; }
    /// A zero point out of range.
    TKSLPto GetPoint(int index) const;
    /// In the document's unit; 0 out of range.
    float GetPointX(int index) const;
    float GetPointY(int index) const;
    /// Millimetres on paper; 0 out of range.
    float GetPointMMX(int index) const;
    float GetPointMMY(int index) const;
    /// In the document's unit. Records the change; nothing out of range or for an equal value.
    void SetPointX(int index, float value);
    void SetPointY(int index, float value);
    /// Base units, without a command; nothing out of range.
    void SetPoint(int index, TKSLPto value);
    void SetBase(int index, std::int64_t x, std::int64_t y);
    void SetBaseX(int index, std::int64_t x);
    void SetBaseY(int index, std::int64_t y);
    /// Takes a point out of a polyline, polygon or Bezier; false for another type or a bad index.
    bool DeletePoint(int index);
    /// Stores the given points over the first ones of the item.
    void AssignPoints(const TKSLPtoA& points);
    /// Puts point 1 at the top left of the box of two points, for the types whose points have no order.
    void NormalizePoints();
    /// Inserts a point on the segment near the place; true when one was inserted.
    virtual bool InsertPoint(std::int64_t bx, std::int64_t by, std::int64_t gap);
    virtual TKSLChain Chain() const { return {}; }

    // Bounds and picking

    const TKSLRect& BoundsRect() const { return fBoundsRect; }
    virtual void UpdateBounds();
    virtual void UpdatePoints() { UpdateBounds(); }
    /// Swaps the two points so that point 1 is left of and above point 2.
    virtual void CheckPosition();
    virtual TKSLBase CenterPoint() const = 0;
    /// `gap` is the tolerance in base units; `fill` lets a filled figure be picked inside.
    virtual bool Pick(std::int64_t bx, std::int64_t by, std::int64_t gap, bool fill);
    /// Whether the item meets the rectangle (`intersects`) or lies inside it.
    virtual bool SearchRect(const TKSLRect& rect, bool intersects) const;
    /// Searches a point of the kind `snap` near the place. A hit goes into `ref`.
    virtual bool CheckPoint(std::int64_t bx, std::int64_t by, std::int64_t gap, TKSLSnap snap, TKSLRef& ref) const;
    /// The first segment of the chain within `gap`, from 1; -1 for none. Segments count as infinite lines.
    int PickLines(std::int64_t bx, std::int64_t by, std::int64_t gap) const;
    virtual void CheckFit(TKSLExtent& extent) const;
    virtual float GetRefX(int) const { return 0; }
    virtual float GetRefY(int) const { return 0; }
    /// Reference points that guides align, from 1.
    int GetNumRefPoints() const;
    TKSLPto GetRefPoint(int index) const;
    TKSLAlignTypes AlignTypes() const;
    /// The extent on an axis. False, and the outputs untouched, for types that have none.
    bool AlignPoints(TKSLAlignType axis, std::int64_t& from, std::int64_t& to) const;
    /// The geometry that crossings are computed from.
    virtual TKSLShape Shape() const;
    /// Appends the crossings with another item.
    void IntersectsWith(const TVGRBaseItem& other, std::vector<TIntSecPoint>& crossings) const;
    /// The chain of points moved sideways by `dist`, to the side of the place.
    void Offset(std::int64_t dist, std::int64_t bx, std::int64_t by, bool closed, TKSLPtoA& points) const;

    // Moving

    /// Moves by base units, or to a grid where `gx`, `gy` are positive. Records the change.
    virtual void BaseMove(std::int64_t bx, std::int64_t by, std::int64_t gx, std::int64_t gy, TKSLMoveOpt option,
                          bool update);
    /// Moves by document units.
    virtual void Move(float ax, float ay, TKSLMoveOpt option);
    virtual void RotateLeft();
    virtual void RotateRight();
    /// Clips a move in document units to the page.
    virtual void BoundsMove(float& ax, float& ay) const;
    /// Clips a move in base units to the page: by the points, and in the other form by the bounds.
    virtual void CheckBaseBoundsMove(std::int64_t& bx, std::int64_t& by, TKSLMoveOpt option) const;
    void CheckBaseBoundsMove(std::int64_t& bx, std::int64_t& by) const;
    /// The offset that carries point 1 to the next grid line, left in `MoveOffset`.
    void MoveToGrid(std::int64_t gx, std::int64_t gy, bool right, bool down);
    /// The offset that carries point 1 to a place, left in `MoveOffset`; false when there is none.
    bool MoveToPoint(std::int64_t bx, std::int64_t by);
    TKSLPto64 MoveOffset() const { return {fmx, fmy}; }
    /// Replaces by -1 a coordinate outside the page.
    void BasePointMove(std::int64_t& bx, std::int64_t& by) const;

    // Data

    virtual bool GetIsData() const { return false; }
    /// Bound to a field, whether it has a value now or not.
    bool IsBound() const { return aIsData; }
    /// Takes the values of the current record, for items bound to data.
    virtual void FillData(bool) {}
    /// Recomputes derived geometry: 2 after a change, other values by family.
    virtual void CalcValues(int) {}
    /// Finds what the item refers to by stored numbers, once everything has been read.
    virtual void ResolveReferences() {}
    /// True when the item shows a length with the document's unit.
    virtual bool ShowsUnits() const { return false; }
    /// The sheet cell of a preview copy.
    void PreviewPos(std::int16_t column, std::int16_t row);
    std::int16_t GetCol() const { return aCol; }
    std::int16_t GetRow() const { return aRow; }

    // Persistence and export

    /// The frame of all items, then the keys of the family.
    virtual std::unique_ptr<TJsonObject> WriteJson() const;
    /// Reads what `WriteJson` writes and updates the bounds.
    virtual void ReadJson(std::int32_t version, TJsonObject& json);
    /// The item's type, the frame of all items, then the fields of the family.
    virtual void WriteData(TBinaryWriter& writer) const;
    /// Reads what follows the type and updates the bounds. A pasted item is moved aside and selected.
    virtual void ReadData(std::int32_t version, TBinaryReader& reader, TKSLReadType type);
    void Write(TBinaryWriter& writer) const { WriteData(writer); }
    virtual void WriteSVG(TSVGOutput& out) const = 0;
    /// ` id="NAME" ` without the blanks of the identifier, or nothing when no identifiers are asked for.
    std::string GetSVGID(const TSVGOutput& out) const;

    // Inspector

    /// Takes out of the two sets the groups of rows that this class does not have.
    virtual void CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const = 0;
    virtual void JsonInspector(TKSLInpectorBaseTypes base, TKSLInpectorTypes props, TJsonArray& rows) const;
    void FillInspector(TKSLInpectorBaseTypes base, TKSLInpectorTypes props, TJsonArray& rows) const;

    // Painting, by the host

    virtual void DrawItem(const TVGRBaseDraw& draw) = 0;
    virtual void PrintItem(const TVGRBaseDraw& draw) = 0;
    /// Paints the item, or the preview copies of the context's sheet cell in its place.
    void DrawElement(const TVGRBaseDraw& draw);
    void DrawPreview(const TVGRBaseDraw& draw);
    void PrintElement(const TVGRBaseDraw& draw) { PrintItem(draw); }

    // Copies and handles

    /// What stands for the item in commands and handles, see TItemHandle.
    const std::shared_ptr<TVGRReceiver>& Receiver();
    /// Names all members that belong to the item's state, those of its base class first: not its selection, scratch
    /// values, or the cell of a preview copy. A class that adds members overrides it.
    virtual void Members(TMembers& members);

    // Reports to the document

    void NotifyUpdate(TKSChange change) const;
    void StateModified();
    /// The look changed.
    void StateUpdate();
    /// The measured size may have changed.
    void StateCalc();

    /// Base units to millimetres on paper.
    float FromBase(std::int64_t value) const;
    float GetMM(std::int64_t value) const { return FromBase(value); }
    /// Millimetres on paper of the place `length` away from `x` in the direction `angle`, radians.
    float XFromBaseAngle(std::int64_t x, std::int64_t length, double angle) const;
    float YFromBaseAngle(std::int64_t y, std::int64_t length, double angle) const;

protected:
    TVGRBaseItem(TVGRBaseLabel& owner, TKSLItemType type, bool preview);
    TVGRBaseItem(TVGRBaseLabel& owner, TKSLItemType type, TVGRLayer& layer, bool preview);

    /// Says to the document that members are about to change: what changes them without `Store` or `Record` calls it
    /// first.
    void Touch();
    /// The same for the number and the identifier, by which the document finds items.
    void TouchName();
    /// Touches and stores, and nothing more.
    template <class T, class Value>
    void Put(T& field, Value&& value) {
        Touch();
        field = std::forward<Value>(value);
    }
    template <class T, class Value>
    void PutName(T& field, Value&& value) {
        TouchName();
        field = std::forward<Value>(value);
    }
    /// What a setter does with a clamped value: nothing for an equal one; else it records the old one, stores, and
    /// marks. False for an equal value, and when the event that tells of the recording ended the item.
    template <class T>
    bool Store(T& field, std::type_identity_t<T> value, TUndoRow row = {}, TFollow follow = TFollow::Update);
    /// Records a property that is about to change; false as above.
    bool Record(TUndoRow row);
    void Follow(TFollow follow);
    /// What follows a stored coordinate, unless a document is being read.
    void PointStored();
    /// Store a coordinate in base units as the setters do.
    void StoreX(int index, std::int64_t base);
    void StoreY(int index, std::int64_t base);
    /// Whether a coordinate of JSON, in document units, keeps to double.
    bool IsExact(double coordinate) const;
    /// A coordinate as JSON has it.
    double CoordinateOf(std::int64_t base) const;
    bool InRange(int index) const { return index >= 1 && index <= int(fPoints.size()); }
    TKSLPto& At(int index) { return fPoints[std::size_t(index - 1)]; }
    const TKSLPto& At(int index) const { return fPoints[std::size_t(index - 1)]; }
    // A family's part of its file forms. An override first calls that of its base class.

    /// Writing changes nothing of the item.
    virtual void Keys(TJsonFields&) {}
    virtual void Fields(TBinaryFields&) {}

    /// Clips a move in base units so that a rectangle stays on the page.
    void ClipToPage(std::int64_t& bx, std::int64_t& by, const TKSLRect& rect) const;
    void CheckBaseBoundsMoveResize(std::int64_t& bx, std::int64_t& by, TKSLMoveOpt option) const;
    /// A hit of a snap search, when the place is near the candidate.
    static bool Snap(std::int64_t bx, std::int64_t by, std::int64_t gap, TKSLPto candidate, TKSRefType type,
                     TKSLRef& ref);
    /// The foot of the perpendicular from the last reference point on a segment.
    static bool SnapFoot(std::int64_t bx, std::int64_t by, std::int64_t gap, TKSLPto from, TKSLPto to, TKSLRef& ref);
    /// Where a line from the last reference point touches the item's circle or arc, or its rim towards the cursor.
    bool SnapTangent(std::int64_t bx, std::int64_t by, std::int64_t gap, TKSLRef& ref) const;
    /// Keeps of two sets only what is given.
    static void Keep(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props, TKSLInpectorBaseTypes keptBase,
                     TKSLInpectorTypes kept);
    /// The points from `first` on as "x,y x,y ..." in millimetres on paper.
    void WritePoints(SvgElement& element, int first) const;
    /// The integer mean of all points, (0, 0) for none.
    TKSLBase MeanPoint() const;
    /// `InsertPoint` of the types whose points form a chain.
    bool InsertInChain(std::int64_t bx, std::int64_t by, std::int64_t gap);

    TVGRBaseLabel& fOwner;
    std::u16string fID;
    TKSLItemType fItemType;
    TAlphaColor fColor = OpaqueBlack;
    TKSLayerOpts fOptions{lopVisible, lopPrint, lopSelectable, lopExport};
    TVGRLayer* fLayer;
    std::int32_t fInID = 0;
    std::int32_t fPenWidth = 100;
    TKSLPtoA fPoints;
    TKSLAngle fAngle = ag0;
    TKSLRect fBoundsRect;
    TKSLRect fCheckRect;
    bool fChanged = false;
    TKSLItemState fState = isNormal;
    bool fNeedRead = false;
    bool fResize = false;
    bool aIsData = false;
    std::int16_t aRow = 0;
    std::int16_t aCol = 0;
    std::int64_t fmx = 0;
    std::int64_t fmy = 0;
    bool fFromPreview = false;

private:
    friend class TVGRBaseLabel; // which keeps the item's commands

    enum class TStage { Built };
    /// An item that nobody knows yet.
    TVGRBaseItem(TVGRBaseLabel& owner, TKSLItemType type, TVGRLayer& layer, bool preview, TStage);
    std::u16string DefaultName() const;

    std::shared_ptr<TVGRReceiver> fReceiver;
    bool fAwaitsCalc = false; ///< stands in the document's list of items to calculate
};

template <class T>
bool TVGRBaseItem::Store(T& field, std::type_identity_t<T> value, TUndoRow row, TFollow follow) {
    if (value == field || !Record(row))
        return false;
    field = std::move(value);
    Follow(follow);
    return true;
}

} // namespace vagrel
