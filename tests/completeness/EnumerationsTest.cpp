// SPDX-License-Identifier: MIT
// Every value of every enumeration of 32 bits, read from the headers, against the list in enumerations.txt: files hold
// these integers. What the list lacks is printed as the line that belongs there.
#include <tests/completeness/Sources.h>

#include <map>
#include <sstream>

namespace vagrel::test {
namespace {

const std::filesystem::path ListFile = std::filesystem::path(VAGREL_SOURCES) / "tests/completeness/enumerations.txt";

std::string Without(const std::string& text, const char* pattern) {
    return std::regex_replace(text, std::regex(pattern), "");
}

// "A,B=7,C" as " A=0 B=7 C=8".
std::string Numbered(std::string body) {
    body = Without(Without(body, "//[^\n]*"), "\\s");
    std::istringstream values(body);
    std::string numbered;
    int next = 0;
    for (std::string value; std::getline(values, value, ',');) {
        if (const std::size_t sign = value.find('='); sign != std::string::npos) {
            next = std::stoi(value.substr(sign + 1), nullptr, 0);
            value.resize(sign);
        }
        numbered += " " + value + "=" + std::to_string(next++);
    }
    return numbered;
}

using TEnumerations = std::map<std::string, std::string>;

TEnumerations InHeaders() {
    static const std::regex pattern(R"(enum (\w+) : std::int32_t \{([^}]*)\})");
    TEnumerations all;
    ForEachSource({".h"}, [&](const std::filesystem::path& file, const std::string& text) {
        ForEachMatch(text, pattern, [&](const std::smatch& match) {
            EXPECT_TRUE(all.emplace(match[1], Numbered(match[2])).second) << match[1] << " stands twice, in " << file;
        });
    });
    return all;
}

TEnumerations InList() {
    std::istringstream lines(ReadSource(ListFile));
    TEnumerations all;
    for (std::string line; std::getline(lines, line);)
        if (!line.empty() && line[0] != '#')
            all.emplace(line.substr(0, line.find(' ')), line.substr(line.find(' ')));
    return all;
}

TEST(Completeness, EveryValueOfEveryEnumerationIsPinned) {
    const TEnumerations headers = InHeaders(), list = InList();
    EXPECT_GT(headers.size(), 80u);
    for (const auto& [name, values] : headers) {
        const auto pinned = list.find(name);
        if (pinned == list.end())
            ADD_FAILURE() << "not in the list: " << name << values;
        else
            EXPECT_EQ(values, pinned->second) << name;
    }
    for (const auto& [name, values] : list)
        EXPECT_TRUE(headers.contains(name)) << name << " is gone";
}

} // namespace
} // namespace vagrel::test
