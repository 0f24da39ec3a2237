// SPDX-License-Identifier: MIT
// What tests of the merge share: bound items that keep what they were filled with, and CSV files.
#pragma once

#include <tests/document/ProbeItem.h>

#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/merge/FillSymbols.h>
#include <vagrel/merge/TVGRCounter.h>
#include <vagrel/merge/TVGRData.h>
#include <vagrel/platform/Files.h>

#include <gtest/gtest.h>

#include <filesystem>

#include <unistd.h>

namespace vagrel::test {

using TTexts = std::vector<std::u16string>;

/// An item bound to data, which tells its fill type only while a merge runs, as texts do.
class BoundItem final : public ProbeItem, public IKSLData {
public:
    BoundItem(TVGRBaseLabel& label, TKSLFillType type, std::u16string_view name, bool preview = false)
        : ProbeItem(label, itText, {{0, 0}, {100, 100}}, preview) {
        SetData(type, name, u"");
    }

    TKSLFillType FillType() const override { return fOwner.GetData().GetLinkData() ? fType : ftNone; }
    std::u16string FillName() const override { return fName; }
    std::u16string SymFillName() const override { return IncSymData(fType, fName); }
    std::u16string GetFormat() const override { return {}; }
    void SetData(TKSLFillType type, std::u16string_view name, std::u16string_view) override {
        fType = type, fName = name, aIsData = type != ftNone;
    }
    bool GetIsData() const override { return aIsData && fOwner.GetData().IsValidData(fType, fName); }
    void FillData(bool) override {
        if (GetIsData())
            texts.push_back(fOwner.DataValue(fName, u"", fType));
    }

    TTexts texts;

private:
    TKSLFillType fType = ftNone;
    std::u16string fName;
};

/// The document owns what is made.
inline BoundItem& Bind(TVGRBaseLabel& label, TKSLFillType type, std::u16string_view name) {
    return *new BoundItem(label, type, name);
}

/// A file that goes with its scope.
class TempFile {
public:
    explicit TempFile(std::string_view bytes)
        : fName(testing::TempDir() + "merge-" + std::to_string(getpid()) + ".csv") {
        WriteFile(fName, bytes);
    }
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;
    ~TempFile() { std::filesystem::remove(fName); }
    std::u16string Name() const { return FromUtf8(fName); }

private:
    std::string fName;
};

/// Merges with the array `rows` of a JSON text.
inline void UseJson(TVGRBaseLabel& label, std::u16string_view json, std::u16string_view repeat = u"") {
    TVGRData& data = label.GetData();
    data.SetJson(json);
    data.SetDataSel(u"rows");
    data.SetFieldRepeat(repeat);
    data.SetLinkData(true);
}

inline void UseCsv(TVGRBaseLabel& label, const TempFile& file, bool header, std::u16string_view repeat = u"") {
    TVGRData& data = label.GetData();
    data.SetCsvData(file.Name(), header, scvSemicolon, scqDoubleQuotes);
    data.SetDataSel(u"csvfile");
    data.SetFieldRepeat(repeat);
    data.SetLinkData(true);
}

/// A JSON source of records 1 to `count` with the fields "id" and "copies"; the latter goes 2, 0, 1 and again.
inline std::u16string Numbered(int count) {
    std::u16string text = u"{\"rows\":[";
    for (int i = 1; i <= count; ++i)
        text += (i > 1 ? u",{\"id\":" : u"{\"id\":") + IntToStr(i) + u",\"copies\":" +
                IntToStr("201"[(i - 1) % 3] - '0') + u"}";
    return text + u"]}";
}

} // namespace vagrel::test
