// SPDX-License-Identifier: MIT
// Texts by key, language files and the names of lists.
#include <vagrel/foundation/Text.h>
#include <vagrel/messages/ListNames.h>
#include <vagrel/messages/TVGRMsg.h>
#include <vagrel/platform/Files.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

namespace vagrel {
namespace {

class TVGRMsgTest : public testing::Test {
protected:
    void Load(std::string_view bytes) {
        WriteFile(fName, bytes);
        TVGRMsg::LoadResources(FromUtf8(fName));
    }
    void TearDown() override {
        std::remove(fName.c_str());
        TVGRMsg::LoadResources(u"");
    }

    const std::string fName =
        testing::TempDir() + testing::UnitTest::GetInstance()->current_test_info()->name() + ".lng";
};

TEST_F(TVGRMsgTest, LanguageFileReplacesAndAdds) {
    Load("\xEF\xBB\xBF; errEmptyID=comment\r\n[error]\r\n errEmptyText = El \"texto\" a=b \r\n=x\nnothing\n"
         "[Commands]\ncmdOpen=Abrir ñ\n;cmdClose=x\n[Other]\nerrEmptyID=other\n[List]\nproField=Campo");
    EXPECT_EQ(TVGRMsg::GetErrorValue(u"EmptyText"), u"El \"texto\" a=b");
    EXPECT_EQ(TVGRMsg::GetErrorValue(u"EmptyID"), u"The ID cannot be empty") << "comment or unknown section";
    EXPECT_EQ(TVGRMsg::GetCommandValue(u"Open"), u"Abrir ñ");
    EXPECT_EQ(TVGRMsg::GetCommandValue(u"Close"), u"not found");
    EXPECT_EQ(TVGRMsg::GetPropValue(u"Field"), u"Campo") << "only the key counts";

    Load("[Properties]\nproLabel=Etiqueta\n");
    EXPECT_EQ(TVGRMsg::GetPropValue(u"Label"), u"Etiqueta");
    EXPECT_EQ(TVGRMsg::GetPropValue(u"Field"), u"Field") << "a load starts from the defaults";
    TVGRMsg::LoadResources(u"/no/such/file");
    EXPECT_EQ(TVGRMsg::GetPropValue(u"Label"), u"Label properties");
}

TEST_F(TVGRMsgTest, LaterGroupWins) {
    Load("[List]\nproField=list\n[Error]\nproField=error\n");
    EXPECT_EQ(TVGRMsg::GetPropValue(u"Field"), u"list");
}

TEST_F(TVGRMsgTest, TemplateHoldsAllKeysSortedAndLoadsAgain) {
    TVGRMsg::SaveToIniFile(FromUtf8(fName));
    const std::string plain = ReadFile(fName);
    EXPECT_TRUE(plain.starts_with("[language]\r\nname=english\r\n\r\n[Error]\r\nerrDelDefStyle="))
        << plain.substr(0, 80);
    EXPECT_EQ(std::count(plain.begin(), plain.end(), '='), 419);
    EXPECT_EQ(plain.find("[Commands]"), std::string::npos);

    Load("[Commands]\ncmdOpen=Abrir\nxyzName=left out\n[Error]\nerrNoJson=No = \"JSON\"\n");
    TVGRMsg::SaveToIniFile(FromUtf8(fName));
    const std::string changed = ReadFile(fName);
    EXPECT_EQ(changed.find("xyzName"), std::string::npos);
    TVGRMsg::LoadResources(FromUtf8(fName));
    EXPECT_EQ(TVGRMsg::GetCommandValue(u"Open"), u"Abrir");
    EXPECT_EQ(TVGRMsg::GetErrorValue(u"NoJson"), u"No = \"JSON\"");
    TVGRMsg::SaveToIniFile(FromUtf8(fName));
    EXPECT_EQ(ReadFile(fName), changed);
}

TEST_F(TVGRMsgTest, ListsShowTranslatedNames) {
    Load("[List]\nlisNone=Ninguno\nlisVertical=V\n[Properties]\nproAbove=Encima\nproVertical=P\n");
    std::vector<std::u16string> list{u"old"};
    FillList(lpFrame, list);
    EXPECT_EQ(list, (std::vector<std::u16string>{u"Ninguno", u"Rectangle", u"Circle", u"Crop circle"}));
    EXPECT_EQ(ItemList(lpFrame, 0), u"None");
    FillList(lpTextPos, list);
    EXPECT_EQ(list.front(), u"Encima");
    EXPECT_EQ(list.back(), u"V");
    FillList(lpAngle, list);
    EXPECT_EQ(list.back(), u"270º");
    FillList(lpLayer, list);
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(ItemList(lpLine, 12), u"");
    EXPECT_EQ(ItemList(lpLine, -1), u"");
    EXPECT_EQ(ItemList(lpTerm, 0), u"");

    for (int kind = lpLayer; kind <= lpBoxStyle; ++kind) {
        FillList(TKSListProp(kind), list);
        EXPECT_EQ(std::count(list.begin(), list.end(), u"not found"), 0) << kind;
        for (const std::u16string& line : kind == lpLine ? list : std::vector<std::u16string>())
            EXPECT_EQ(line.size(), 12U);
    }
}

} // namespace
} // namespace vagrel
