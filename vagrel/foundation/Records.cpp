// SPDX-License-Identifier: MIT
// Arithmetic of the small records.
#include <vagrel/foundation/Records.h>

#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/TVGRBaseDraw.h>
#include <vagrel/foundation/Units.h>

namespace vagrel {

void TKSLPto::SetValues(float x, float y, TKSLUnits units) { SetX(x, units), SetY(y, units); }
void TKSLPto::SetX(float value, TKSLUnits units) { bX = vagrel::SetValue(value, units); }
void TKSLPto::SetY(float value, TKSLUnits units) { bY = vagrel::SetValue(value, units); }
void TKSLPto::Move(float x, float y, TKSLUnits units) {
    BaseMove(vagrel::SetValue(x, units), vagrel::SetValue(y, units));
}
float TKSLPto::GetX(TKSLUnits units) const { return GetValue(bX, units); }
float TKSLPto::GetY(TKSLUnits units) const { return GetValue(bY, units); }
void TKSLPto::BaseMove(std::int64_t dx, std::int64_t dy) { bX = AddSat(bX, dx), bY = AddSat(bY, dy); }

void TKSLPto::SetDpIBaseX(int px, int dpi) { bX = Round(double(px) * 25400 / dpi); }
void TKSLPto::SetDpIBaseY(int px, int dpi) { bY = Round(double(px) * 25400 / dpi); }
std::int64_t TKSLPto::GetDraw(std::int64_t value, int dpi) { return Round(double(MulSat(value, dpi)) / 25400); }

float TKSLPto::DrawX(const TVGRBaseDraw& draw) const { return draw.GetDrawX(bX); }
float TKSLPto::DrawY(const TVGRBaseDraw& draw) const { return draw.GetDrawY(bY); }
float TKSLPto::DrawGapX(std::int64_t gap, const TVGRBaseDraw& draw) const { return draw.GetDrawX(AddSat(bX, gap)); }
float TKSLPto::DrawGapY(std::int64_t gap, const TVGRBaseDraw& draw) const { return draw.GetDrawY(AddSat(bY, gap)); }
std::int64_t TKSLPto::PrintX(const TVGRBaseDraw& draw) const { return draw.GetPrintX(bX); }
std::int64_t TKSLPto::PrintY(const TVGRBaseDraw& draw) const { return draw.GetPrintY(bY); }

float TKSLBase::MMX(std::int64_t scale) const { return float(double(X) / (double(scale) * 1000)); }
float TKSLBase::MMY(std::int64_t scale) const { return float(double(Y) / (double(scale) * 1000)); }

TKSLBPoint TKSLBPoint::Valid(std::int64_t x, std::int64_t y) {
    TKSLBPoint point;
    point.X = x, point.Y = y, point.IsValid = true;
    return point;
}

TKSLBPoint operator+(TKSLBPoint a, const TKSLBPoint& b) {
    a.X = AddSat(a.X, b.X), a.Y = AddSat(a.Y, b.Y);
    return a;
}

TKSLBPoint operator-(TKSLBPoint a, const TKSLBPoint& b) {
    a.X = SubSat(a.X, b.X), a.Y = SubSat(a.Y, b.Y);
    return a;
}

TKSLBPoint operator-(TKSLBPoint a) {
    a.X = SubSat(0, a.X), a.Y = SubSat(0, a.Y);
    return a;
}

TKSLBPoint operator*(TKSLBPoint a, float factor) {
    a.X = Round(double(a.X) * double(factor)), a.Y = Round(double(a.Y) * double(factor));
    return a;
}

TKSLBPoint operator/(TKSLBPoint a, float divisor) { return divisor == 0 ? a : a * (1.0f / divisor); }

float TKSLRefLine::DrawX1(const TVGRBaseDraw& draw) const { return draw.GetDrawX(bX1); }
float TKSLRefLine::DrawY1(const TVGRBaseDraw& draw) const { return draw.GetDrawY(bY1); }
float TKSLRefLine::DrawX2(const TVGRBaseDraw& draw) const { return draw.GetDrawX(bX2); }
float TKSLRefLine::DrawY2(const TVGRBaseDraw& draw) const { return draw.GetDrawY(bY2); }

void TKSLink::Reset(bool clearDraw, bool clearPositions) {
    ID = 0;
    bX = bY = -1;
    if (clearDraw)
        draw = false;
    if (clearPositions)
        PosFrom = PosTo = -1;
}

void TKSLRef::Reset(bool all) {
    bX = bY = lbX = lbY = -1;
    pX = pY = lpX = lpY = -1;
    link = drawed = false;
    fType = rtyRect;
    if (all)
        draw = false;
}

void TKSLRef::FindRef(TKSRefType type) {
    if (bX != lbX || bY != lbY) {
        lbX = bX, lbY = bY;
        draw = true;
    }
    fType = type;
    link = true;
}

void TKSLRef::SetLast() {
    lpX = pX, lpY = pY;
    oType = fType;
    drawed = true;
}

void TKSLDrawConf::Ini(TAlphaColor color, TAlphaColor backColor, bool fill, TKSLineType lineType, float penWidth) {
    fFColor = color, fBColor = backColor, fFill = fill, fLinType = lineType, fPenWidth = penWidth;
    fRound = fScalePen = fPath = fIniPath = false;
}

void TKSLDrawConf::IniFont(TAlphaColor color, bool bold, bool italic, bool underline, std::u16string_view name,
                           float height, float scale) {
    fFontColor = color, fBold = bold, fItalic = italic, fUnderline = underline;
    fFontName = name, fFontHeight = height, fFontScale = scale;
}

void TDataEdit::Reset() {
    fX = fY = -1;
    fW = fH = fPos = 0;
    sVal.clear(), sCode.clear();
    fSel = fIsAltPress = fAddedUnicode = fEditing = false;
}

} // namespace vagrel
