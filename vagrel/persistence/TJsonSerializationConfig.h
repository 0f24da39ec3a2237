// SPDX-License-Identifier: MIT
// How JSON is read and written in this process.
#pragma once

#include <cstddef>
#include <string>

namespace vagrel {

/// Process-wide options of the JSON model; set at start, constant after.
struct TJsonSerializationConfig {
    std::u16string LineBreak = u"\n";
    std::u16string IndentChar = u"\t";
    /// Local date times are written in UTC with "Z"; else as local time with its offset.
    bool UseUtcTime = true;
    /// A null object or array reads as zero instead of raising EJsonCastException.
    bool NullConvertsToValueTypes = false;
    /// The deepest nesting that a reader takes.
    std::size_t MaxDepth = 512;

    static TJsonSerializationConfig& Instance() {
        static TJsonSerializationConfig config;
        return config;
    }
    /// Back to the defaults, for tests.
    static void Reset() { Instance() = TJsonSerializationConfig(); }
};

} // namespace vagrel
