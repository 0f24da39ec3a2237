// SPDX-License-Identifier: MIT
// What the JSON model throws.
#pragma once

#include <cstddef>

#include <vagrel/foundation/Exceptions.h>

namespace vagrel {

class EJsonException : public EVagrel {
    using EVagrel::EVagrel;
};

/// A value taken as a type that it does not convert to.
class EJsonCastException : public EJsonException {
    using EJsonException::EJsonException;
};

/// A path that cannot be walked.
class EJsonPathException : public EJsonException {
    using EJsonException::EJsonException;
};

/// Text that is no JSON. The message ends in "(line, column)".
class EJsonParserException : public EJsonException {
public:
    EJsonParserException(const std::string& message, std::size_t lineNum, std::size_t column, std::size_t position)
        : EJsonException(message + " (" + std::to_string(lineNum) + ", " + std::to_string(column) + ")"),
          fLineNum(lineNum), fColumn(column), fPosition(position) {}

    /// Line of the fault, 1-based.
    std::size_t GetLineNum() const { return fLineNum; }
    /// Column of the fault in UTF-16 code units, 1-based.
    std::size_t GetColumn() const { return fColumn; }
    /// Offset of the fault in code units of the text that was read, 0-based.
    std::size_t GetPosition() const { return fPosition; }

private:
    std::size_t fLineNum, fColumn, fPosition;
};

} // namespace vagrel
