// SPDX-License-Identifier: MIT
// The keys of texts that the sources ask for, against the table of texts.
#include <tests/completeness/Sources.h>

#include <vagrel/editor/TAct.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/messages/TVGRMsg.h>

#include <set>

namespace vagrel::test {
namespace {

constexpr std::u16string_view NotFound = u"not found";

struct TGroup {
    std::string_view name;
    std::u16string (*lookup)(std::u16string_view);
};

constexpr TGroup Groups[] = {
    {"Error", TVGRMsg::GetErrorValue},     {"Info", TVGRMsg::GetInfoValue},       {"Command", TVGRMsg::GetCommandValue},
    {"Prop", TVGRMsg::GetPropValue},       {"Dialogs", TVGRMsg::GetDialogsValue}, {"Editor", TVGRMsg::GetEditorValue},
    {"Actions", TVGRMsg::GetActionsValue}, {"List", TVGRMsg::GetListValue},
};

// A prefix, and captions that only a language file brings: without one the tools show that of their kind, or none.
const std::set<std::string> NoKeys{"act", "DrawFlow", "DrawDimRad1", "DrawDimRad2", "DrawDimDia1", "DrawDimDia2"};

void Expect(const std::string& group, const std::string& key, const std::filesystem::path& file) {
    for (const TGroup& row : Groups)
        if (row.name == group) {
            EXPECT_NE(row.lookup(FromUtf8(key)), NotFound) << group << " has no " << key << ", asked for in " << file;
            return;
        }
    ADD_FAILURE() << "no group " << group << " in " << file;
}

TEST(Completeness, EveryKeyThatIsAskedForHasAText) {
    static const std::regex call(R"(TVGRMsg::Get(\w+)Value\(([^)]*)\))"), literal(R"!(u"(\w+)")!");
    int keys = 0;
    ForEachSource({".cpp", ".h"}, [&](const std::filesystem::path& file, const std::string& text) {
        ForEachMatch(text, call, [&](const std::smatch& match) {
            const std::string group = match[1];
            // Both of a choice between two.
            ForEachMatch(match[2].str(), literal, [&](const std::smatch& key) { Expect(group, key[1], file), ++keys; });
        });
        // These come from tables.
        if (file.filename() == "TAct_Tables.cpp")
            ForEachMatch(text, literal, [&](const std::smatch& key) {
                if (!NoKeys.contains(key[1]))
                    Expect("Actions", key[1], file), ++keys;
            });
    });
    EXPECT_GT(keys, 60);
}

TEST(Completeness, EveryActionHasItsTexts) {
    for (int action = eaSelection; action <= eaDimAng; ++action) {
        const TKSLSInfo info = TAct::SetCurAction(TKSLEdAction(action));
        EXPECT_NE(info.aAction, NotFound) << action;
        EXPECT_NE(info.sState, NotFound) << action;
        EXPECT_EQ(info.aAction.empty(), action == eaFlow) << action;
    }
    TAct::ResetForTests();
}

} // namespace
} // namespace vagrel::test
