// SPDX-License-Identifier: MIT
// A program that has the library and no host: a check digit, JSON, a text by its key, an exception across the border.
#include <vagrel/barcode/TBarcode.h>
#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/messages/TVGRMsg.h>
#include <vagrel/persistence/TJsonObject.h>

#include <iostream>

int main() {
    vagrel::TJsonObject json;
    json.ParseUtf8(R"({"code": "590123412345"})");
    const std::string code = vagrel::ToUtf8(json.GetString(u"code"));
    std::cout << vagrel::TBarcode::CheckSumMod(code, vagrel::ctMod10).Code << '\n';
    try {
        vagrel::TVGRBaseLabel::Create(nullptr);
    } catch (const vagrel::EVagrel&) {
        std::cout << vagrel::ToUtf8(vagrel::TVGRMsg::GetErrorValue(u"EmptyText")) << '\n';
    }
}
