// SPDX-License-Identifier: MIT
// What an item type must have before it counts as there: a name, the rules of the table of types, a tool, a class, a
// factory and a sample in the shared suite. The suites of items and of paintings go through the same list of types, so
// that a type without a sample, or without its file, SVG and painted forms, fails there.
#include <tests/completeness/Sources.h>
#include <tests/support/ItemSuite.h>

#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/document/UpdateScope.h>
#include <vagrel/editor/TAct.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>

#include <algorithm>
#include <functional>
#include <set>

namespace vagrel::test {
namespace {

constexpr std::int64_t U = 1000;

struct TFactory {
    TKSLItemType type;
    std::function<TVGRBaseItem&(TVGRBaseLabel&)> make;
};

const TKSLPto A{10 * U, 10 * U}, B{40 * U, 30 * U}, C{20 * U, 50 * U};

// clang-format off
const TFactory Factories[] = {
    {itPoint, [](auto& label) -> auto& { return label.CreatePoint(U, U); }},
    {itLine, [](auto& label) -> auto& { return label.CreateLine(U, U, 2 * U, 2 * U); }},
    {itArrowLine, [](auto& label) -> auto& { return label.CreateArrowLine(U, U, 2 * U, 2 * U); }},
    {itPolyLine, [](auto& label) -> auto& { return label.CreatePolyLine({A, B, C}); }},
    {itArc, [](auto& label) -> auto& { return label.CreateArc(A, B, C); }},
    {itRectangle, [](auto& label) -> auto& { return label.CreateRectangle(U, U, U, U); }},
    {itPolygon, [](auto& label) -> auto& { return label.CreatePolygon({A, B, C}); }},
    {itCircle, [](auto& label) -> auto& { return label.CreateCircle(B, U); }},
    {itCircle, [](auto& label) -> auto& { return label.CreateCircle2P(A, B); }},
    {itCircle, [](auto& label) -> auto& { return label.CreateCircle3P(A, B, C); }},
    {itEllipse, [](auto& label) -> auto& { return label.CreateEllipse(B, U, 2 * U); }},
    {itText, [](auto& label) -> auto& { return label.CreateText(U, U); }},
    {itPara, [](auto& label) -> auto& { return label.CreatePara(U, U, U, U); }},
    {itBarcode, [](auto& label) -> auto& { return label.CreateBarcode(U, U, u"123", btCODE39); }},
    {itPDF417, [](auto& label) -> auto& { return label.CreatePDF417(U, U, u"123"); }},
    {itDataMatrix, [](auto& label) -> auto& { return label.CreateDataMatrix(U, U, u"123"); }},
    {itQRCode, [](auto& label) -> auto& { return label.CreateQRCode(U, U, u"123"); }},
    {itImage, [](auto& label) -> auto& { return label.CreateImage(U, U, U, U, true, u""); }},
    {itFlow, [](auto& label) -> auto& { return label.CreateFlow(U, U, U, U, ftProcess); }},
    {itLink, [](auto& label) -> auto& { return label.CreateLink({}, {}, ltDirLine); }},
    {itLink, [](auto& label) -> auto& { return label.CreatePolyLink({}, {}, ltPolyline, {A, B}); }},
    {itTable, [](auto& label) -> auto& { return label.CreateTable(U, U, U, U); }},
    {itPolyText, [](auto& label) -> auto& { return label.CreatePolyText(U, U); }},
    {itRank, [](auto& label) -> auto& { return label.CreateRank(U, U, U, U); }},
    {itNutriScore, [](auto& label) -> auto& { return label.CreateNutriScore(U, U, U, U); }},
    {itLevel, [](auto& label) -> auto& { return label.CreateLevel(B, U); }},
    {itSymbol, [](auto& label) -> auto& { return label.CreateSymbol(U, U); }},
    {itBezier, [](auto& label) -> auto& { return label.CreateBezier({A, B, C, A}); }},
    {itDim, [](auto& label) -> auto& { return label.CreateDim(A, B, C); }},
    {itDim, [](auto& label) -> auto& { return *label.CreateDimAng({}, {}, C); }},
    {itDim, [](auto& label) -> auto& { return label.CreateDimRad1(A, U, 1); }},
    {itDim, [](auto& label) -> auto& { return label.CreateDimRad2(A, U, 1); }},
    {itDim, [](auto& label) -> auto& { return label.CreateDimDia1(A, U, 1); }},
    {itDim, [](auto& label) -> auto& { return label.CreateDimDia2(A, U, 1); }},
    {itSector, [](auto& label) -> auto& { return label.CreateSector(B, U, 0, 90); }},
    {itSector, [](auto& label) -> auto& { return label.CreateSector2P(A, B, 0, 90); }},
    {itSector, [](auto& label) -> auto& { return label.CreateSector3P(A, B, C, 0, 90); }},
    {itPackage, [](auto& label) -> auto& { return label.CreatePackage(U, U, U, U); }},
    {itRichText, [](auto& label) -> auto& { return label.CreateRichText(U, U, U, U); }},
};
// clang-format on

std::set<TKSLItemType> Available() {
    const auto types = AvailableItemTypes();
    std::set<TKSLItemType> all(types.begin(), types.end());
    EXPECT_EQ(all.size(), types.size()) << "a type stands twice in the registry";
    return all;
}

// The enumerators of TKSLItemType, by number.
std::vector<std::string> TypesInHeader() {
    const std::string header = ReadSource(std::filesystem::path(VAGREL_SOURCES) / "vagrel/foundation/Enumerations.h");
    std::vector<std::string> types;
    ForEachMatch(header, std::regex(R"(enum TKSLItemType : std::int32_t \{([^}]*)\})"), [&](const std::smatch& body) {
        ForEachMatch(body[1].str(), std::regex(R"(\bit\w+)"),
                     [&](const std::smatch& type) { types.push_back(type[0]); });
    });
    EXPECT_FALSE(types.empty());
    return types;
}

// The names of the types that the tools draw, made or refused by the host.
std::set<std::string> DrawnByTools() {
    std::set<std::string> names;
    for (int action = eaSelection; action <= eaDimAng; ++action) {
        TestHost label;
        label.CreateCircle(A, 10 * U);
        label.SetAction(TKSLEdAction(action));
        for (const TKSLPto pick : {A, B, C})
            TAct::AddPoint(pick.bX, pick.bY);
        TAct::SetState(edEnd);
        try {
            label.PickEditor(20 * U, 10 * U, 100, {}, false);
            if (label.ItemsCount() == 1) { // a chain waits for its end
                TAct::SetState(edPickNext);
                label.RightButton(0, 0, 100, {});
            }
            if (label.ItemsCount() == 2)
                names.insert(ToUtf8(NameItem(label.GetItem(2)->GetItemType())));
        } catch (const ENotAvailable& error) {
            const std::string text = error.what();
            const std::size_t begin = text.find('(') + 1;
            names.insert(text.substr(begin, text.find(')') - begin));
        }
        TAct::ResetForTests();
    }
    return names;
}

// Whether undo knows more of a type than its stroke. Those that nobody makes yet owe no answer.
bool HasUndoOfItsOwn(TKSLItemType type) {
    const TItemSample* sample = SampleOf(type);
    if (!sample)
        return true;
    TestHost label(emDrawing, unCM, 10);
    label.GetMeasure().SetLabelSizeMM(1000, 800);
    int recorded = 0;
    for (const TSetter& set : SettersOf(MakeSample(label, *sample))) {
        label.Clear({cleUndoRedo}, false);
        const UpdateScope measuring(label);
        set();
        recorded += !label.IsUndoEmpty();
    }
    return recorded > 2;
}

// A type that is new answers each of these in its own row, or stands among those that have none.
TEST(Completeness, EveryTypeAnswersEveryQuestion) {
    const std::set<std::string> tools = DrawnByTools();
    const struct {
        const char* question;
        std::function<bool(TKSLItemType)> has;
        TKSLSet<TKSLItemType> none;
    } rows[] = {
        {"handles", [](TKSLItemType type) { return ItemTypeRow(type).handles != hfNone; }, {}},
        {"an alignment rule",
         [](TKSLItemType type) { return ItemTypeRow(type).align != arNone; },
         {itPolyLine, itArc, itPolygon, itLink, itBezier}},
        {"reference points",
         [](TKSLItemType type) { return ItemTypeRow(type).guides != gpNone; },
         {itLink, itBezier, itDim}},
        {"a tool", [&](TKSLItemType type) { return tools.contains(ToUtf8(NameItem(type))); }, {}},
        {"rows of undo", HasUndoOfItsOwn, {itPoint}},
    };
    const std::vector<std::string> types = TypesInHeader();
    for (std::size_t number = itPoint; number < types.size(); ++number) {
        const auto type = TKSLItemType(number);
        if (!IsItemType(type)) {
            ADD_FAILURE() << types[number] << " has no row";
            continue;
        }
        EXPECT_EQ(ItemTypeRow(type).points == 0, HasTrait(type, trFreePoints)) << types[number];
        for (const auto& row : rows)
            EXPECT_EQ(row.has(type), !row.none.Has(type)) << types[number] << ": " << row.question;
    }
}

TEST(Completeness, EveryTypeIsThereOrSaysThatItIsNot) {
    const auto available = Available();
    std::set<std::u16string_view> names;
    for (int number = itPoint; IsItemType(TKSLItemType(number)); ++number) {
        const auto type = TKSLItemType(number);
        const std::string name = ToUtf8(NameItem(type));
        SCOPED_TRACE(name);
        EXPECT_TRUE(names.insert(NameItem(type)).second);
        EXPECT_TRUE(std::ranges::count(Factories, type, &TFactory::type)) << "no factory";
        TestHost label;
        if (available.contains(type)) {
            EXPECT_EQ(label.MakeItem(label.ActiveLayer(), type, 4, false).GetItemType(), type);
            EXPECT_TRUE(SampleOf(type)) << "not in the shared suite";
            continue;
        }
        EXPECT_FALSE(SampleOf(type));
        try {
            label.MakeItem(label.ActiveLayer(), type, 4, false);
            ADD_FAILURE() << "made, and not in the registry";
        } catch (const ENotAvailable& error) {
            EXPECT_NE(std::string(error.what()).find(name), std::string::npos) << error.what();
        }
        EXPECT_EQ(label.ItemsCount(), 0);
    }
}

TEST(Completeness, FactoriesMakeWhatTheyAreNamedFor) {
    const auto available = Available();
    for (const TFactory& factory : Factories) {
        SCOPED_TRACE(ToUtf8(NameItem(factory.type)));
        TestHost label;
        if (available.contains(factory.type)) {
            const TVGRBaseItem& item = factory.make(label);
            EXPECT_EQ(item.GetItemType(), factory.type);
            EXPECT_EQ(label.ItemsCount(), 1);
            EXPECT_EQ(&item.GetLayer(), &label.ActiveLayer());
        } else {
            EXPECT_THROW(factory.make(label), ENotAvailable);
            EXPECT_EQ(label.ItemsCount(), 0);
        }
    }
}

} // namespace
} // namespace vagrel::test
