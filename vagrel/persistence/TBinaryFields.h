// SPDX-License-Identifier: MIT
// The fields of a binary block, said once for writing and reading.
#pragma once

#include <vagrel/persistence/TBinaryWriter.h>

#include <limits>
#include <type_traits>

namespace vagrel {

/// Carries fields to a binary block, or back, in the order in which they are named:
///
///     void TVGRBaseThing::Fields(TBinaryFields& fields) {
///         fields(fFill, fBackColor, fName);
///         fields.As<std::int16_t>(fAlign);
///     }
class TBinaryFields {
public:
    explicit TBinaryFields(TBinaryWriter& writer) : fWriter(&writer) {}
    TBinaryFields(TBinaryReader& reader, std::int32_t version) : fReader(&reader), fVersion(version) {}

    bool Reads() const { return fReader != nullptr; }
    /// Of the file that is read.
    std::int32_t Version() const { return fVersion; }
    TBinaryWriter& Writer() const { return *fWriter; }
    TBinaryReader& Reader() const { return *fReader; }

    /// Numbers and enumerations in the width of their types, truth values as a byte, texts.
    template <class... T>
    void operator()(T&... fields) {
        (Field(fields), ...);
    }
    /// Numbers and enumerations in another width, which must hold what is written.
    template <class Stored, class... T>
    void As(T&... fields) {
        (StoredAs<Stored>(fields), ...);
    }

private:
    template <class T>
    void Field(T& field) {
        if constexpr (std::is_enum_v<T>)
            StoredAs<std::underlying_type_t<T>>(field);
        else if constexpr (std::is_same_v<T, bool>)
            Reads() ? void(field = fReader->ReadBool()) : fWriter->Write(field);
        else if constexpr (std::is_arithmetic_v<T>)
            StoredAs<T>(field);
        else
            Reads() ? void(field = fReader->ReadString()) : fWriter->Write(field);
    }
    template <class Stored, class T>
    void StoredAs(T& field) {
        Reads() ? void(field = T(fReader->Read<Stored>())) : fWriter->Write(Stored(field));
    }

    TBinaryWriter* fWriter = nullptr;
    TBinaryReader* fReader = nullptr;
    std::int32_t fVersion = 0;
};

/// Writes what an object names in its `Fields`, which changes nothing of it then.
template <class T>
void WriteFields(const T& object, TBinaryWriter& writer) {
    TBinaryFields fields(writer);
    const_cast<T&>(object).Fields(fields);
}
template <class T>
void ReadFields(T& object, TBinaryReader& reader, std::int32_t version) {
    TBinaryFields fields(reader, version);
    object.Fields(fields);
}

} // namespace vagrel
