// SPDX-License-Identifier: MIT
// The handles of every type of item, alone and among several, and as picked references.
#include <tests/editor/EditorFixture.h>

#include <vagrel/merge/TVGRData.h>

namespace vagrel::test {
namespace {

// A handle as text: kind, number of the point, place and second corner in millimetres.
std::string Show(const TKSSelectionValue& handle) {
    auto number = [](float value) {
        std::string text = std::to_string(value);
        text.erase(text.find_last_not_of('0') + 1);
        return text.back() == '.' ? text.substr(0, text.size() - 1) : text;
    };
    std::string text = std::to_string(handle.SelType) + "#" + std::to_string(handle.Pos) + "@" + number(handle.X1) +
                       "," + number(handle.Y1);
    if (handle.X2 != 0 || handle.Y2 != 0)
        text += ":" + number(handle.X2) + "," + number(handle.Y2);
    return text;
}

std::string H(TKSLSelType type, int pos, const char* place) {
    return std::to_string(type) + "#" + std::to_string(pos) + "@" + place + " ";
}

class Handles : public Editor {
protected:
    /// The handles of an item.
    std::string Of(TVGRBaseItem& item) {
        std::string text;
        for (int i = 1; i <= label.SelPointCount(); ++i)
            if (label.GetSelPoint(i).Item == &item)
                text += Show(label.GetSelPoint(i)) + " ";
        return text;
    }
    std::string Alone(TVGRBaseItem& item) {
        Select({&item});
        label.FillSelPoints();
        return Of(item);
    }
    std::string Together(TVGRBaseItem& item) {
        Select({&other, &item});
        label.FillSelPoints();
        return Of(item);
    }
    std::string Reference(TVGRBaseItem& item, bool alone) {
        alone ? Select({&item}) : Select({&item, &other});
        label.FillRefPoints();
        return Of(item);
    }
    TVGRBaseItem& Box(TKSLItemType type) { return *new ProbeBox(label, type, {{2000, 4000}, {8000, 7000}}); }

    TVGRBaseItem& other = label.CreatePoint(1000, 1000);
};

TEST_F(Handles, PointsAndChainsShowTheirPoints) {
    const TKSLPtoA four{{1000, 2000}, {3000, 4000}, {5000, 6000}, {7000, 8000}};
    TVGRBaseItem& line = label.CreateLine(1000, 2000, 3000, 4000);
    EXPECT_EQ(Alone(line), H(stSizePoint, 1, "1,2") + H(stSizePoint, 2, "3,4"));
    EXPECT_EQ(Together(line), H(stFixedPoint, 1, "1,2") + H(stFixedPoint, 2, "3,4"));
    EXPECT_EQ(Reference(line, true), H(stRefLine, 1, "1,2:3,4"));
    EXPECT_EQ(Reference(line, false), H(stRefLine, 1, "1,2:3,4"));

    TVGRBaseItem& dim = MakeProbe(label, itDim, {{0, 0}, {0, 0}, {0, 0}, {0, 0}, {1000, 2000}, {3000, 4000}});
    EXPECT_EQ(Alone(dim), H(stSizePoint, 1, "1,2") + H(stSizePoint, 2, "3,4"));

    EXPECT_EQ(Alone(other), H(stPoint, 1, "1,1"));
    Select({&other, &line});
    label.FillSelPoints();
    EXPECT_EQ(Of(other), H(stFixedPoint, 1, "1,1"));
    EXPECT_EQ(Reference(other, true), "");

    const std::string fixed =
        H(stFixedPoint, 1, "1,2") + H(stFixedPoint, 2, "3,4") + H(stFixedPoint, 3, "5,6") + H(stFixedPoint, 4, "7,8");
    TVGRBaseItem& polygon = label.CreatePolygon(four);
    EXPECT_EQ(Alone(polygon), H(stPolyPoint, 1, "1,2") + H(stPolyPoint, 2, "3,4") + H(stPolyPoint, 3, "5,6") +
                                  H(stPolyPoint, 4, "7,8"));
    EXPECT_EQ(Together(polygon), fixed);
    EXPECT_EQ(Reference(polygon, true), H(stSizePoint, 1, "1,2") + H(stSizePoint, 1, "3,4") + H(stSizePoint, 1, "5,6") +
                                            H(stSizePoint, 1, "7,8"));
    TVGRBaseItem& bezier = label.CreateBezier(four);
    EXPECT_EQ(Alone(bezier),
              H(stBezier, 1, "1,2") + H(stBezierCtrl, 2, "3,4") + H(stBezierCtrl, 3, "5,6") + H(stBezier, 4, "7,8"));
    EXPECT_EQ(Together(bezier), fixed);
}

TEST_F(Handles, BoxesShowTheirCorners) {
    const std::string eight = H(stSizeRectNW, 1, "2,4") + H(stSizeRectN, 1, "5,4") + H(stSizeRectNE, 1, "8,4") +
                              H(stSizeRectW, 1, "2,5.5") + H(stSizeRectE, 1, "8,5.5") + H(stSizeRectSW, 1, "2,7") +
                              H(stSizeRectS, 1, "5,7") + H(stSizeRectSE, 1, "8,7");
    const std::string four =
        H(stFixedRect, 1, "2,4") + H(stFixedRect, 1, "2,7") + H(stFixedRect, 1, "8,4") + H(stFixedRect, 1, "8,7");
    for (const TKSLItemType type :
         {itRectangle, itImage, itFlow, itTable, itRank, itNutriScore, itPackage, itRichText, itPara}) {
        TVGRBaseItem& box = Box(type);
        const bool judged = type != itRank && type != itNutriScore;
        EXPECT_EQ(Alone(box), type == itPara ? eight + H(stRect, 1, "2,4:8,7") : eight) << type;
        EXPECT_EQ(Together(box), four) << type;
        EXPECT_EQ(Reference(box, true), judged ? eight : "") << type;
        EXPECT_EQ(Reference(box, false), judged ? four : "") << type;
    }
    for (const TKSLItemType type : {itBarcode, itPDF417, itDataMatrix, itQRCode, itPolyText}) {
        // Without an alignment of its own a poly text shows its top left corner; the probes have no reference point.
        const std::string anchor = H(stAlign, 1, type == itPolyText ? "2,4" : "0,0");
        TVGRBaseItem& code = Box(type);
        EXPECT_EQ(Alone(code), H(stRect, 1, "2,4:8,7") + anchor) << type;
        EXPECT_EQ(Together(code), H(stFixedPoint, 1, "2,4:8,7") + anchor) << type;
        EXPECT_EQ(Reference(code, true), "") << type;
    }
}

TEST_F(Handles, RoundFiguresShowCentreAndRadii) {
    const std::string fixed = H(stFixedPoint, 1, "5,5.5");
    for (const TKSLItemType type : {itCircle, itSector, itLevel}) {
        TVGRBaseItem& round = Box(type);
        EXPECT_EQ(Alone(round), H(stCenterCircle, 1, "5,5.5") + H(stRadio, 2, "8,5.5")) << type;
        EXPECT_EQ(Together(round), fixed) << type;
        EXPECT_EQ(Reference(round, true), type == itLevel ? "" : H(stCenter, 1, "5,5.5") + H(stRadio, 1, "8,5.5"))
            << type;
        EXPECT_EQ(Reference(round, false), type == itLevel ? "" : fixed) << type;
    }
    TVGRBaseItem& ellipse = Box(itEllipse);
    EXPECT_EQ(Alone(ellipse), H(stCenter, 1, "5,5.5") + H(stRadioX, 2, "8,5.5") + H(stRadioY, 2, "5,4"));
    EXPECT_EQ(Together(ellipse), fixed);
    EXPECT_EQ(Reference(ellipse, true), H(stCenter, 1, "5,5.5") + H(stRadioX, 1, "8,5.5") + H(stRadioY, 1, "5,4"));

    ProbeArc& arc = *new ProbeArc(label);
    EXPECT_EQ(Alone(arc), H(stArc, 1, "1,0") + H(stArc, 2, "2,1") + H(stArc, 3, "1,2"));
    EXPECT_EQ(Together(arc), H(stFixedPoint, 1, "2,1"));
    EXPECT_EQ(arc.GetRefPoint(2), (TKSLPto{1000, 2000}));
}

TEST_F(Handles, LinksShowTheCourseThatCanBeDragged) {
    const TKSLPtoA course{{1000, 2000}, {3000, 4000}};
    TVGRBaseItem& arc = *new ProbeLink(label, 1, 1, ltArc, course);
    TVGRBaseItem& chain = *new ProbeLink(label, 1, 1, ltPolyline, course);
    TVGRBaseItem& direct = *new ProbeLink(label, 1, 1, ltDirLine, course);
    EXPECT_EQ(Alone(arc), H(stArcLink, 1, "1,2"));
    EXPECT_EQ(Together(arc), H(stFixedPoint, 1, "1,2"));
    EXPECT_EQ(Reference(arc, true), H(stArcLink, 1, "1,2"));
    EXPECT_EQ(Alone(chain), H(stPolyPoint, 1, "1,2") + H(stPolyPoint, 2, "3,4"));
    EXPECT_EQ(Together(chain), H(stFixedPoint, 1, "1,2") + H(stFixedPoint, 2, "3,4"));
    EXPECT_EQ(Alone(direct), "");
}

TEST_F(Handles, ABoundTextShowsWhatItDisplays) {
    TVGRBaseText& text = MakeText(label);
    const std::string anchor = H(stAlign, 1, "20,10");
    EXPECT_EQ(Alone(text), H(stRect, 1, "20,10:30,14") + anchor);
    EXPECT_EQ(Together(text), H(stFixedPoint, 1, "20,10:30,14") + anchor);

    label.GetData().SetJson(u"{\"rows\": [{\"name\": \"x\"}]}");
    label.GetData().SetDataSel(u"rows");
    label.GetData().SetLinkData(true);
    label.CheckPrintData();
    text.SetData(ftJson, u"name", u"");
    ASSERT_TRUE(text.GetIsData());
    text.StoreMeasure({10000, 4000, 3200, 800, 0, 1});
    text.SetDispWidth(6000);
    EXPECT_EQ(Alone(text), H(stRect, 1, "20,10:26,14") + anchor);
    label.SetShowDispWidthHandle(true);
    EXPECT_EQ(Alone(text), H(stRect, 1, "20,10:26,14") + anchor + H(stDispWidth, 1, "26,12:26.75,13.5"));
}

TEST_F(Handles, AreInTheDocumentsUnitAndCountFromOne) {
    label.SetUnits(unCM);
    EXPECT_EQ(Alone(label.CreateLine(10000, 20000, 30000, 40000)), H(stSizePoint, 1, "1,2") + H(stSizePoint, 2, "3,4"));
    for (int index : {-1, 0, 3})
        EXPECT_EQ(label.GetSelPoint(index).Item, nullptr);
    label.ClearSelection(false);
    EXPECT_EQ(label.SelPointCount(), 0);
}

} // namespace
} // namespace vagrel::test
