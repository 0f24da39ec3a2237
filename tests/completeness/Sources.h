// SPDX-License-Identifier: MIT
// The project's own sources, as text.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <string_view>

namespace vagrel::test {

inline std::string ReadSource(const std::filesystem::path& file) {
    std::ifstream in(file);
    EXPECT_TRUE(in) << file;
    return {std::istreambuf_iterator<char>(in), {}};
}

/// Calls `take(path, text)` for every file with one of the endings in the folders of the library, its host and
/// programs.
template <class Take>
void ForEachSource(std::initializer_list<std::string_view> endings, Take take) {
    for (const char* folder : {"vagrel", "host", "apps"})
        for (const auto& entry :
             std::filesystem::recursive_directory_iterator(std::filesystem::path(VAGREL_SOURCES) / folder))
            for (const std::string_view ending : endings)
                if (entry.path().extension() == ending)
                    take(entry.path(), ReadSource(entry.path()));
}

/// Calls `take(match)` for every match of `pattern` in `text`.
template <class Take>
void ForEachMatch(const std::string& text, const std::regex& pattern, Take take) {
    for (std::sregex_iterator match(text.begin(), text.end(), pattern), end; match != end; ++match)
        take(*match);
}

} // namespace vagrel::test
