// SPDX-License-Identifier: MIT
// One sample of every kind of item, and what can be done with any of them.
#pragma once

#include <tests/support/TestHost.h>
#include <vagrel/document/TVGRBaseItem.h>

#include <functional>
#include <optional>

namespace vagrel::test {

/// How an item of a type is made and what is known of it then. Points are base coordinates.
struct TItemSample {
    TKSLItemType type;
    TKSLPtoA points;
    /// A place on its outline.
    TKSLPto on;
    /// The snap that finds its reference points, for the types that have one.
    std::optional<TKSLSnap> snap;
    /// What the family adds to the form of all items: its JSON keys, and the size of its binary fields.
    std::string_view keys;
    std::size_t bytes;
    /// Makes a preview copy, without points.
    TVGRBaseItem& (*preview)(TVGRBaseLabel&);
    /// The JSON keys that a setter changes without a command.
    std::string_view unrecorded = "ID Options ";
};

/// Null for a type without a sample.
const TItemSample* SampleOf(TKSLItemType type);

/// The sample's item on the active layer.
TVGRBaseItem& MakeSample(PartialLabel& label, const TItemSample& sample);

using TSetter = std::function<void()>;

/// One for every property of every capability that the item answers to. Each expects to read back what it sets, unless
/// the item stands where setters cut their values.
std::vector<TSetter> SettersOf(TVGRBaseItem& item, bool expect = true);

/// Calls all of them.
void SetEverything(TVGRBaseItem& item);

/// Whether a document holds nothing but closed elements with quoted attributes.
bool IsWellFormed(const std::string& svg);

constexpr TKSLPto NoPoint{-1, -1};

/// A search for a snap point within 300 base units of `at`.
struct TSnapRow {
    const char* text;
    TVGRBaseItem& item;
    TKSLSnap snap;
    TKSLPto at, last, hit;
    TKSRefType type = rtyRect;
};
void CheckSnaps(std::initializer_list<TSnapRow> rows);

} // namespace vagrel::test
