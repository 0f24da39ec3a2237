// SPDX-License-Identifier: MIT
// The Data Matrix item.
#include <vagrel/barcode/TVGRBaseDataMatrix.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/persistence/TBinaryFields.h>
#include <vagrel/persistence/TJsonFields.h>

namespace vagrel {

namespace {

constexpr TCodeSizes Sizes{300, 300, 2000, 2000, 100, 100};
constexpr int SmallestSide = 10;

} // namespace

TVGRBaseDataMatrix::TVGRBaseDataMatrix(TVGRBaseLabel& owner, bool preview)
    : TVGRBaseDataMatrix(owner, owner.GetLayer(1), preview) {}

TVGRBaseDataMatrix::TVGRBaseDataMatrix(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview)
    : TVGRBaseMatrixCode(owner, itDataMatrix, layer, preview, Sizes) {
    fCode = u"DMatrix";
    Encode();
}

void TVGRBaseDataMatrix::Encode() {
    const std::vector<std::uint8_t> bytes(fCode.begin(), fCode.end());
    try {
        std::uint16_t columns = 0, rows = 0;
        CalcECC200(bytes, ecc200_Autosize, ecc200_Square, fGrid.dark, columns, rows);
        fGrid.columns = columns;
        fGrid.rows = rows;
    } catch (const EOutOfRange&) {
        // Nothing is drawn rather than the text before: a text from data may be too long.
        fGrid = {SmallestSide, SmallestSide, {}};
    }
    MeasureSymbol();
}

void TVGRBaseDataMatrix::Members(TMembers& members) {
    TVGRBaseMatrixCode::Members(members);
    members(fDMSize, fDMShape);
}

void TVGRBaseDataMatrix::Keys(TJsonFields& keys) {
    TVGRBaseMatrixCode::Keys(keys);
    keys(u"DMSize", fDMSize);
    keys(u"DMShape", fDMShape);
    SizeKeys(keys);
    CodeKeys(keys);
}

void TVGRBaseDataMatrix::Fields(TBinaryFields& fields) {
    TVGRBaseMatrixCode::Fields(fields);
    fields.As<std::int32_t>(fDMSize);
    fields.As<std::uint8_t>(fDMShape);
    SizeFields(fields);
    CodeFields(fields);
}

} // namespace vagrel
