// SPDX-License-Identifier: MIT
// A counter that numbers labels.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vagrel {

class TBinaryFields;
class TBinaryReader;
class TBinaryWriter;
class TJsonArray;
class TJsonFields;
class TJsonObject;
class TMembers;
class TVGRBaseLabel;

/// Numbers from `NumFrom` to `NumTo`, each on `Repeat` labels. A counter adds itself to its document, which owns it.
class TVGRCounter {
public:
    explicit TVGRCounter(TVGRBaseLabel& owner);
    TVGRCounter(const TVGRCounter&) = delete;
    TVGRCounter& operator=(const TVGRCounter&) = delete;
    ~TVGRCounter();

    const std::u16string& GetName() const { return fName; }
    void SetName(std::u16string_view value) { StoreText(fName, value); }
    std::int64_t GetNumFrom() const { return fNumFrom; }
    std::int64_t GetNumTo() const { return fNumTo; }
    /// Drag the other end along where the range would turn round.
    void SetNumFrom(std::int64_t value);
    void SetNumTo(std::int64_t value);
    std::int16_t GetRepeat() const { return fRepeat; }
    /// At least 1.
    void SetRepeat(std::int16_t value);
    std::int32_t GetStep() const { return fStep; }
    /// A step of 0 becomes 1.
    void SetStep(std::int32_t value);
    const std::u16string& GetBefore() const { return fBefore; }
    void SetBefore(std::u16string_view value) { StoreText(fBefore, value); }
    const std::u16string& GetAfter() const { return fAfter; }
    void SetAfter(std::u16string_view value) { StoreText(fAfter, value); }
    const std::u16string& GetFormat() const { return fFormat; }
    void SetFormat(std::u16string_view value) { StoreText(fFormat, value); }

    /// The labels that the counter gives: ((to − from + 1) ÷ step) × repeat, saturating.
    std::int32_t GetNumLabs() const { return fNumLabs; }
    void CalcNumLabs();

    /// True while an item to be printed uses it.
    bool GetActive() const { return fActive; }
    void SetActive(bool value) { fActive = value; }
    /// The text of the current number, empty before the first `Reset`.
    const std::u16string& GetValue() const { return fValue; }
    /// To the first number.
    void Reset();
    /// One label on. At the end of the range it stays on the last number.
    void Next();
    /// To a label, from 1: as so many steps from `Reset`.
    void MoveTo(std::int64_t label);

    void WriteJson(TJsonArray& counters) const;
    void ReadJson(std::int32_t version, TJsonObject& json);
    void WriteData(TBinaryWriter& writer) const;
    void ReadData(std::int32_t version, TBinaryReader& reader);

    /// All keys and fields, and all members that belong to the state.
    void Keys(TJsonFields& keys);
    void Fields(TBinaryFields& fields);
    void Members(TMembers& members);

private:
    void CalcValue();
    void TakeRead();
    void StoreText(std::u16string& field, std::u16string_view value);

    TVGRBaseLabel& fOwner;
    std::int64_t fNumFrom = 1, fNumTo = 100;
    std::int16_t fRepeat = 1;
    std::int32_t fStep = 1;
    std::u16string fBefore, fAfter, fFormat, fName;
    std::int64_t fCounter = 0;
    std::int16_t fRepeatPos = 0;
    std::u16string fValue;
    std::int32_t fNumLabs = 100;
    bool fActive = false;
};

} // namespace vagrel
