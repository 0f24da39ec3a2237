// SPDX-License-Identifier: MIT
// The grammar of JSON without recursion, so that the limit of nesting is the configuration's and not the stack's.
#include <vagrel/persistence/TJsonReader.h>

#include "JsonName_p.h"
#include "JsonTree_p.h"

#include <vagrel/persistence/JsonExceptions.h>
#include <vagrel/persistence/TJsonSerializationConfig.h>

namespace vagrel {

template <class Unit>
struct TJsonReader<Unit>::TFrame {
    std::size_t start;  // its first value in fValues
    std::size_t target; // where the value of the present key goes
    bool isObject;
    TJsonNameIndex index; // of the names, once they are many
};

template <class Unit>
TJsonReader<Unit>::TJsonReader(std::basic_string_view<Unit> text, const TJsonReaderProgressRec* progress)
    : fBegin(text.data()), fAt(fBegin), fEnd(fBegin + text.size()),
      fProgress(progress && progress->Progress ? progress : nullptr), fNextReport(fProgress ? fBegin : fEnd),
      fMaxDepth(TJsonSerializationConfig::Instance().MaxDepth), fKnownIndex(std::make_unique<TJsonNameIndex>()) {}

template <class Unit>
TJsonReader<Unit>::~TJsonReader() {
    for (TJsonName* name : fKnownNames)
        if (name)
            name->Release();
}

template <class Unit>
std::unique_ptr<TJsonBaseObject> TJsonReader<Unit>::Read(TJsonDataType wanted) {
    SkipBlanks();
    if (fAt == fEnd)
        return nullptr;
    if (*fAt == '{' ? wanted == jdtArray : *fAt != '[' || wanted == jdtObject)
        FailExpected(wanted == jdtNone ? "object or array" : wanted == jdtObject ? "\"{\"" : "\"[\"");
    bool atValue = Open();
    while (!fFrames.empty()) {
        if (fAt >= fNextReport)
            Report();
        if (atValue) {
            SkipBlanks();
            if (fAt != fEnd && (*fAt == '{' || *fAt == '[')) {
                atValue = Open();
                continue;
            }
            Store(ReadScalar());
        }
        atValue = Next();
    }
    SkipBlanks();
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
    fFrames.push_back({fValues.size(), 0, isObject, {}});
    SkipBlanks();
    if (fAt != fEnd && *fAt == (isObject ? '}' : ']')) {
        Close();
        return false;
    }
    if (isObject)
        ReadKey();
    return true;
}

// Goes on behind a value. True when another value follows, false when the container ended.
template <class Unit>
bool TJsonReader<Unit>::Next() {
    const bool isObject = fFrames.back().isObject;
    SkipBlanks();
    if (fAt != fEnd && *fAt == ',') {
        ++fAt;
        if (isObject) {
            SkipBlanks();
            ReadKey();
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
    const std::size_t start = fFrames.back().start;
    auto container = TJsonTreeBuilder::Build(fFrames.back().isObject, fValues.data() + start, fNames.data() + start,
                                             fValues.size() - start);
    fValues.resize(start);
    fNames.resize(start);
    fFrames.pop_back();
    if (fFrames.empty())
        fRoot = std::move(container);
    else
        Store(TJsonTreeBuilder::Value(std::move(container)));
}

template <class Unit>
void TJsonReader<Unit>::Store(TJsonDataValue value) {
    const TFrame& frame = fFrames.back();
    if (frame.isObject) {
        fValues[frame.target] = std::move(value);
    } else {
        fValues.push_back(std::move(value));
        fNames.push_back(nullptr);
    }
}

// Takes a key with its colon and finds the place of its value: that of the same key, or a new one.
template <class Unit>
void TJsonReader<Unit>::ReadKey() {
    constexpr std::size_t linearLimit = 32;
    TJsonName* name = Intern(ReadName());
    TFrame& frame = fFrames.back();
    TJsonName* const* names = fNames.data() + frame.start;
    const std::size_t count = fNames.size() - frame.start;
    std::size_t found = count;
    if (count < linearLimit) {
        found = std::size_t(std::find(names, names + count, name) - names);
    } else {
        while (frame.index.Count() < count)
            frame.index.Add(names);
        if (const std::int32_t at = frame.index.Find(names, name->Text(), name->Hash()); at >= 0)
            found = std::size_t(at);
    }
    if (found == count) {
        fNames.push_back(name);
        fValues.emplace_back();
    }
    frame.target = frame.start + found;
    SkipBlanks();
    if (fAt == fEnd || *fAt != ':')
        FailExpected("\":\"");
    ++fAt;
}

template <class Unit>
TJsonName* TJsonReader<Unit>::Intern(std::u16string_view text) {
    const std::uint32_t hash = TJsonName::Hash(text);
    if (const std::int32_t known = fKnownIndex->Find(fKnownNames.data(), text, hash); known >= 0)
        return fKnownNames[std::size_t(known)];
    fKnownNames.push_back(nullptr);
    fKnownNames.back() = TJsonName::Create(text, hash);
    fKnownIndex->Add(fKnownNames.data());
    return fKnownNames.back();
}

template class TJsonReader<char>;
template class TJsonReader<char16_t>;

} // namespace vagrel
