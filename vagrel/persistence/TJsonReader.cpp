// SPDX-License-Identifier: MIT
// The grammar of JSON without recursion, so that the limit of nesting is the configuration's and not the stack's.
#include <vagrel/persistence/TJsonReader.h>

#include "JsonName_p.h"
#include "JsonTokens_p.h"
#include "JsonTree_p.h"

#include <vagrel/persistence/JsonExceptions.h>
#include <vagrel/persistence/TJsonSerializationConfig.h>

namespace vagrel {

template <class Unit>
struct TJsonReader<Unit>::TFrame {
    std::size_t start;         // its first value in fValues
    std::size_t firstName;     // its first name in fNames
    std::size_t target;        // where the value that is read now goes
    std::uint32_t lastName;    // known index of its latest name, at first of the name that it stands under
    std::uint32_t highestName; // the highest so far
    bool isObject;
    std::unique_ptr<TJsonNameIndex> index; // of the names, once they are many
};

template <class Unit>
TJsonReader<Unit>::TJsonReader(std::basic_string_view<Unit> text, const TJsonReaderProgressRec* progress)
    : fBegin(text.data()), fAt(fBegin), fEnd(fBegin + text.size()),
      fProgress(progress && progress->Progress ? progress : nullptr), fNextReport(fProgress ? fBegin : fEnd),
      fMaxDepth(TJsonSerializationConfig::Instance().MaxDepth), fKnownIndex(std::make_unique<TJsonNameIndex>()) {
    Intern({});
}

template <class Unit>
TJsonReader<Unit>::~TJsonReader() {
    for (TJsonName* name : fKnownNames)
        if (name)
            name->Release();
}

template <class Unit>
std::unique_ptr<TJsonBaseObject> TJsonReader<Unit>::Read(TJsonDataType wanted) {
    fAt = BehindBlanks(fAt, fEnd);
    if (fAt == fEnd)
        return nullptr;
    if (*fAt == '{' ? wanted == jdtArray : *fAt != '[' || wanted == jdtObject)
        FailExpected(wanted == jdtNone ? "object or array" : wanted == jdtObject ? "\"{\"" : "\"[\"");
    bool atValue = Open();
    while (!fFrames.empty()) {
        if (fAt >= fNextReport)
            Report();
        if (atValue) {
            fAt = BehindBlanks(fAt, fEnd);
            if (fAt != fEnd && (*fAt == '{' || *fAt == '[')) {
                atValue = Open();
                continue;
            }
            ReadScalar(fValues[fFrames.back().target]);
        }
        atValue = Next();
    }
    fAt = BehindBlanks(fAt, fEnd);
    if (fAt != fEnd)
        FailExpected("end of file");
    Report();
    return std::move(fRoot);
}

// Takes the opening bracket. True when a value follows, false when the container was empty.
template <class Unit>
bool TJsonReader<Unit>::Open() {
    if (fFrames.size() >= fMaxDepth)
        Fail("Nesting is deeper than " + std::to_string(fMaxDepth) + " levels", fAt);
    const bool isObject = *fAt++ == '{';
    const std::uint32_t above = fFrames.empty() ? 0 : fFrames.back().lastName;
    fFrames.push_back({fValues.size(), fNames.size(), 0, above, 0, isObject, nullptr});
    fAt = BehindBlanks(fAt, fEnd);
    if (fAt != fEnd && *fAt == (isObject ? '}' : ']')) {
        Close();
        return false;
    }
    if (isObject)
        ReadKey();
    else
        NewSlot();
    return true;
}

// Goes on behind a value. True when another value follows, false when the container ended.
template <class Unit>
bool TJsonReader<Unit>::Next() {
    const bool isObject = fFrames.back().isObject;
    fAt = BehindBlanks(fAt, fEnd);
    if (fAt != fEnd && *fAt == ',') {
        ++fAt;
        if (isObject) {
            fAt = BehindBlanks(fAt, fEnd);
            ReadKey();
        } else {
            NewSlot();
        }
        return true;
    }
    if (fAt == fEnd || *fAt != (isObject ? '}' : ']'))
        FailExpected("\",\"");
    Close();
    return false;
}

// Takes the closing bracket and puts the container into the one around it.
template <class Unit>
void TJsonReader<Unit>::Close() {
    ++fAt;
    const TFrame& frame = fFrames.back();
    const std::size_t start = frame.start, firstName = frame.firstName;
    auto container = TJsonTreeBuilder::Build(frame.isObject, fValues.data() + start, fNames.data() + firstName,
                                             fValues.size() - start);
    fValues.resize(start);
    fNames.resize(firstName);
    fFrames.pop_back();
    if (fFrames.empty())
        fRoot = std::move(container);
    else
        fValues[fFrames.back().target] = TJsonTreeBuilder::Value(std::move(container));
}

// Makes place for the next value of an array.
template <class Unit>
void TJsonReader<Unit>::NewSlot() {
    fFrames.back().target = fValues.size();
    fValues.emplace_back();
}

// Takes a key with its colon and finds the place of its value: that of the same key, or a new one.
template <class Unit>
void TJsonReader<Unit>::ReadKey() {
    TFrame& frame = fFrames.back();
    const bool isFirst = fNames.size() == frame.firstName;
    const TFollow& follow = fFollow[frame.lastName];
    const std::uint32_t expected = isFirst ? follow.first : follow.next;
    bool isPlain = false;
    const std::uint32_t known = ReadKnownName(expected, isPlain);
    if (known != expected && isPlain)
        (isFirst ? fFollow[frame.lastName].first : fFollow[frame.lastName].next) = known;
    frame.lastName = known;
    TJsonName* name = fKnownNames[known];
    // Names are known in the order of their first coming, so one above all others is new to the object.
    const std::size_t found = isFirst || known > frame.highestName ? fNames.size() : Position(frame, name);
    frame.highestName = std::max(frame.highestName, known);
    frame.target = frame.start + found - frame.firstName;
    if (found == fNames.size()) {
        fNames.push_back(name);
        fValues.emplace_back();
    } else {
        fValues[frame.target].Clear();
    }
    fAt = BehindBlanks(fAt, fEnd);
    if (fAt == fEnd || *fAt != ':')
        FailExpected("\":\"");
    ++fAt;
}

// Where in fNames the object has the name; the end when it has not.
template <class Unit>
std::size_t TJsonReader<Unit>::Position(TFrame& frame, TJsonName* name) {
    constexpr std::size_t linearLimit = 32;
    TJsonName* const* names = fNames.data() + frame.firstName;
    const std::size_t count = fNames.size() - frame.firstName;
    if (count < linearLimit)
        return frame.firstName + std::size_t(std::find(names, names + count, name) - names);
    if (!frame.index)
        frame.index = std::make_unique<TJsonNameIndex>();
    while (frame.index->Count() < count)
        frame.index->Add(names);
    const std::int32_t at = frame.index->Find(names, name->Text(), name->Hash());
    return at < 0 ? fNames.size() : frame.firstName + std::size_t(at);
}

// Reads a name. Objects of one kind repeat their names in order, so a comparison with the expected one mostly does;
// `isPlain` tells of another name whether it stands in the text as it is and may be expected so.
template <class Unit>
std::uint32_t TJsonReader<Unit>::ReadKnownName(std::uint32_t expected, bool& isPlain) {
    if (fAt == fEnd || *fAt != '"')
        return Intern(ReadName());
    const Unit* begin = fAt + 1;
    const std::u16string_view text = fKnownNames[expected]->Text();
    if (std::size_t(fEnd - begin) > text.size() && begin[text.size()] == '"' &&
        std::equal(text.begin(), text.end(), begin)) {
        fAt = begin + text.size() + 1;
        return expected;
    }
    const Unit* end = BehindPlain(begin, fEnd);
    isPlain = end != fEnd && *end == '"';
    return Intern(ReadName());
}

template <class Unit>
std::uint32_t TJsonReader<Unit>::Intern(std::u16string_view text) {
    const std::uint32_t hash = TJsonName::Hash(text);
    if (const std::int32_t known = fKnownIndex->Find(fKnownNames.data(), text, hash); known >= 0)
        return std::uint32_t(known);
    fKnownNames.push_back(nullptr);
    fKnownNames.back() = TJsonName::Create(text, hash);
    fKnownIndex->Add(fKnownNames.data());
    fFollow.emplace_back();
    return std::uint32_t(fKnownNames.size() - 1);
}

template class TJsonReader<char>;
template class TJsonReader<char16_t>;

} // namespace vagrel
