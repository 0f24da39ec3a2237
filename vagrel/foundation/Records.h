// SPDX-License-Identifier: MIT
// The small records that the whole library passes around: points, links, snap references, payloads, editor input.
#pragma once

#include <vagrel/foundation/Colors.h>
#include <vagrel/foundation/Enumerations.h>
#include <vagrel/foundation/TKSLRect.h>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace vagrel {

class TVGRBaseDraw;

/// A point of base coordinates, as items and commands hold it.
struct TKSLPto {
    std::int64_t bX = 0;
    std::int64_t bY = 0;

    void Define(float x, float y, TKSLUnits units) { SetValues(x, y, units); }
    void SetValues(float x, float y, TKSLUnits units);
    void SetX(float value, TKSLUnits units);
    void SetY(float value, TKSLUnits units);
    /// Adds a vector in document units, rounded to base units.
    void Move(float x, float y, TKSLUnits units);
    float GetX(TKSLUnits units) const;
    float GetY(TKSLUnits units) const;

    void DefineBase(std::int64_t x, std::int64_t y) { SetBase(x, y); }
    void SetBase(std::int64_t x, std::int64_t y) { bX = x, bY = y; }
    void SetBaseX(std::int64_t x) { bX = x; }
    void SetBaseY(std::int64_t y) { bY = y; }
    void BaseMove(std::int64_t dx, std::int64_t dy);
    void SetValue(TKSLPto other) { *this = other; }
    void Reset() { *this = {}; }
    bool SamePto(std::int64_t x, std::int64_t y) const { return bX == x && bY == y; }

    void SetDpIBaseX(int px, int dpi);
    void SetDpIBaseY(int px, int dpi);
    /// A paper length in base units as pixels, rounded.
    static std::int64_t GetDraw(std::int64_t value, int dpi);
    /// Pixels on screen: (coordinate ÷ (draw scale × 25400)) × dpi, in double.
    float DrawX(const TVGRBaseDraw& draw) const;
    float DrawY(const TVGRBaseDraw& draw) const;
    float DrawGapX(std::int64_t gap, const TVGRBaseDraw& draw) const;
    float DrawGapY(std::int64_t gap, const TVGRBaseDraw& draw) const;
    /// Dots on a printer, rounded.
    std::int64_t PrintX(const TVGRBaseDraw& draw) const;
    std::int64_t PrintY(const TVGRBaseDraw& draw) const;

    friend bool operator==(TKSLPto, TKSLPto) = default;
};
using TKSLPtoA = std::vector<TKSLPto>;
template <std::size_t Count>
using TKSLPtoArr = std::array<TKSLPto, Count>;
using TKSLPt64 = TKSLPto;

/// A base pair that converts to millimetres on paper.
struct TKSLBase {
    std::int64_t X = 0;
    std::int64_t Y = 0;

    float MMX(std::int64_t scale) const;
    float MMY(std::int64_t scale) const;
    friend bool operator==(TKSLBase, TKSLBase) = default;
};

/// An integer pixel.
struct TPoint {
    std::int32_t X = 0;
    std::int32_t Y = 0;
    friend bool operator==(TPoint, TPoint) = default;
};

/// A point that may be absent. Equality and arithmetic look at the coordinates alone.
struct TKSLBPoint {
    std::int64_t X = 0;
    std::int64_t Y = 0;
    bool IsValid = false;

    TKSLBPoint() = default;
    TKSLBPoint(TPoint point) : X(point.X), Y(point.Y) {}
    static TKSLBPoint Valid(std::int64_t x, std::int64_t y);
    static TKSLBPoint InValid() { return {}; }

    friend TKSLBPoint operator+(TKSLBPoint a, const TKSLBPoint& b);
    friend TKSLBPoint operator-(TKSLBPoint a, const TKSLBPoint& b);
    friend TKSLBPoint operator-(TKSLBPoint a);
    friend TKSLBPoint operator*(TKSLBPoint a, float factor);
    /// A divisor of 0 gives the point unchanged.
    friend TKSLBPoint operator/(TKSLBPoint a, float divisor);
    friend bool operator==(const TKSLBPoint& a, const TKSLBPoint& b) { return a.X == b.X && a.Y == b.Y; }
};

/// A reference segment.
struct TKSLRefLine {
    std::int64_t bX1 = 0;
    std::int64_t bY1 = 0;
    std::int64_t bX2 = 0;
    std::int64_t bY2 = 0;

    void Reset() { *this = {}; }
    void SetBase1(std::int64_t x, std::int64_t y) { bX1 = x, bY1 = y; }
    void SetBase2(std::int64_t x, std::int64_t y) { bX2 = x, bY2 = y; }
    float DrawX1(const TVGRBaseDraw& draw) const;
    float DrawY1(const TVGRBaseDraw& draw) const;
    float DrawX2(const TVGRBaseDraw& draw) const;
    float DrawY2(const TVGRBaseDraw& draw) const;
};
using TKSLRefLineA = std::vector<TKSLRefLine>;

/// A point with its control offset.
struct TKSLPtoCr {
    std::int64_t bX = 0;
    std::int64_t bY = 0;
    std::int64_t iX = 0;
    std::int64_t iY = 0;
};
using TKSLPtoACr = std::vector<TKSLPtoCr>;

struct TKSLk {
    std::int32_t bX = 0;
    std::int32_t bY = 0;
};

struct TKSLSPoint {
    float X = 0;
    float Y = 0;
};

struct TPoint2D {
    double X = 0;
    double Y = 0;
};

struct TEdge {
    TPoint2D P1;
    TPoint2D P2;
};

/// One point in base coordinates, integer pixels and fractional pixels.
struct TKSLActPto {
    std::int64_t bX = 0;
    std::int64_t bY = 0;
    std::int32_t iX = 0;
    std::int32_t iY = 0;
    float sX = 0;
    float sY = 0;

    void Reset() { *this = {-1, -1, -1, -1, -1.0f, -1.0f}; }
};

/// One end of an attachment between a link item and its target.
struct TKSLink {
    std::int32_t ID = 0;
    std::int16_t PosFrom = 0;
    std::int16_t PosTo = 0;
    std::int32_t bX = 0;
    std::int32_t bY = 0;
    std::int32_t sX = 0;
    std::int32_t sY = 0;
    bool draw = false;
    TKSLinkType aType = ltDirLine;

    void Reset(bool clearDraw, bool clearPositions);
    /// Fills `PosFrom` while that is -1, and `PosTo` otherwise.
    void SetPos(std::int16_t pos) { (PosFrom == -1 ? PosFrom : PosTo) = pos; }
};

/// A snap reference: the current and the last point in base units and in pixels.
struct TKSLRef {
    std::int64_t bX = 0;
    std::int64_t bY = 0;
    std::int64_t lbX = 0;
    std::int64_t lbY = 0;
    std::int32_t pX = 0;
    std::int32_t pY = 0;
    std::int32_t lpX = 0;
    std::int32_t lpY = 0;
    TKSRefType fType = rtyRect;
    TKSRefType oType = rtyRect;
    bool draw = false;
    bool drawed = false;
    bool link = false;

    void Reset(bool all);
    /// Records a hit at `bX`, `bY`.
    void FindRef(TKSRefType type);
    bool SamePoint() const { return lpX != -1 && pX == lpX && pY == lpY; }
    void SetLast();
    /// False when there is no last point.
    bool HasLast() const { return lbX != -1 || lbY != -1; }
};

/// A laid-out line of text: its first and last character and its place.
struct TKSLTxtInf {
    std::int32_t txF = 0;
    std::int32_t txT = 0;
    std::int64_t bX = 0;
    std::int64_t bY = 0;
};
using TxtLines = std::vector<TKSLTxtInf>;

struct TKSLFTxtInf {
    std::int32_t txF = 0;
    std::int32_t txT = 0;
    float fX = 0;
    float fY = 0;
};
using TxtFLines = std::vector<TKSLFTxtInf>;

struct TKSLSize {
    float Ws = 0;
    float Hs = 0;
    float Ca = 0;
    std::int32_t Ci = 0;
    std::int32_t Wi = 0;
    std::int32_t Hi = 0;
};

/// The style state that the drawing of a symbol walks through. Pen width and font height in millimetres.
struct TKSLDrawConf {
    TAlphaColor fFColor = OpaqueBlack;
    TAlphaColor fBColor = OpaqueWhite;
    TAlphaColor fFontColor = OpaqueBlack;
    bool fFill = true;
    bool fRound = false;
    bool fScalePen = false;
    TKSLineType fLinType = iiSolid;
    float fPenWidth = 0.1f;
    std::u16string fFontName = u"Arial";
    bool fBold = false;
    bool fItalic = false;
    bool fUnderline = false;
    float fFontHeight = 5.0f;
    float fFontScale = 1.0f;
    bool fPath = false;
    bool fIniPath = false;

    void Reset() { *this = {}; }
    void Ini(TAlphaColor color, TAlphaColor backColor, bool fill, TKSLineType lineType, float penWidth);
    void IniFont(TAlphaColor color, bool bold, bool italic, bool underline, std::u16string_view name, float height,
                 float scale);
};

/// Typed coordinates of the editor, with screen positions of type `Screen`.
template <class Screen>
struct TKSLInput {
    float X = 0, Y = 0, V = 0;
    std::int32_t BX = -1, BY = -1, BV = -1;
    std::int64_t OBX = -1, OBY = -1, OBV = -1;
    Screen OSX = -1, OSY = -1, OSV = -1;
    bool Relative = false;
    bool Polar = false;
    bool Ok = false;

    void Reset() { *this = {}; }
};
using TKSLInputI = TKSLInput<std::int32_t>;
using TKSLInputS = TKSLInput<float>;

/// The state of the in-place editor.
struct TDataEdit {
    std::int32_t fX = -1, fY = -1, fW = 0, fH = 0;
    float fVal = 0, fInc = 0, fMax = 0, fMin = 0;
    std::u16string sVal, sCode;
    bool fSel = false;
    std::int32_t fPos = 0, fApos = 0, fAnum = 0;
    TKSLInputType fType = intNone;
    bool fIsAltPress = false, fAddedUnicode = false, fEditing = false;

    /// Position unset, sizes 0, texts and flags cleared; the numbers and their limits stay.
    void Reset();
};

/// What travels with a change notification.
struct TKSChangeValue {
    std::int64_t fInt1 = 0;
    std::int64_t fInt2 = 0;
    float fSing = 0;
    bool fBool = false;
    std::u16string fStr;
};

/// A host's scroll and ruler geometry.
struct TKSLDimScroll {
    std::int32_t wLab = 0, hLab = 0;
    std::int64_t bWLab = 0, bHLab = 0, bSWLab = 0, bSHLab = 0;
    float wLabMM = 0, hLabMM = 0;
    std::int32_t wScaleLab = 0, hScaleLab = 0;
    float sizeRuler = 0;
    std::int16_t lRuler = 0, tRuler = 0, rRuler = 0, bRuler = 0;
    std::int16_t marginLeft = 0, marginTop = 0, marginRight = 0, marginBottom = 0;
    std::int32_t totWidth = 0, totHeight = 0, gapScroll = 0, sPosX = 0, sPosY = 0, sMaxW = 0, sMaxH = 0;
    std::int32_t visibleW = 0, visibleH = 0, pageW = 0, pageH = 0;
    bool fReady = false;
};

/// The status line: caption of the action and prompt of the state.
struct TKSLSInfo {
    std::u16string aAction;
    std::u16string sState;
};

} // namespace vagrel
