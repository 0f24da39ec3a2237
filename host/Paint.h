// SPDX-License-Identifier: MIT
// How this host paints each family of items: one function a family, to the same picture as the family's SVG.
#pragma once

namespace vagrel {

class CairoDraw;
class TVGRBaseBarcode;
class TVGRBaseBezier;
class TVGRBaseCircle;
class TVGRBaseEllipse;
class TVGRBaseLine;
class TVGRBaseMatrixCode;
class TVGRBasePoint;
class TVGRBasePolyLine;
class TVGRBasePolygon;
class TVGRBaseRectangle;
class TVGRBaseSector;
class TVGRBaseText;

void Paint(const TVGRBasePoint& point, const CairoDraw& draw);
void Paint(const TVGRBaseLine& line, const CairoDraw& draw);
void Paint(const TVGRBasePolyLine& chain, const CairoDraw& draw);
void Paint(const TVGRBaseBezier& curve, const CairoDraw& draw);
void Paint(const TVGRBaseRectangle& box, const CairoDraw& draw);
void Paint(const TVGRBasePolygon& figure, const CairoDraw& draw);
void Paint(const TVGRBaseCircle& circle, const CairoDraw& draw);
void Paint(const TVGRBaseEllipse& ellipse, const CairoDraw& draw);
void Paint(const TVGRBaseSector& sector, const CairoDraw& draw);
void Paint(const TVGRBaseText& text, const CairoDraw& draw);
void Paint(const TVGRBaseBarcode& bars, const CairoDraw& draw);
void Paint(const TVGRBaseMatrixCode& code, const CairoDraw& draw);

} // namespace vagrel
