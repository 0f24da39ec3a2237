// SPDX-License-Identifier: MIT
// The exceptions of the library. Every one is an EVagrel, whose text is kept in UTF-16 and given by what() in UTF-8.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace vagrel {

/// Base of all exceptions of the library. `what()` is UTF-8: the places that the exception came through, then the
/// message.
class EVagrel : public std::runtime_error {
public:
    explicit EVagrel(std::u16string_view message);
    explicit EVagrel(const std::string& message) : std::runtime_error(message), fWhat(message) {}

    /// The message without the places, in UTF-16.
    std::u16string Message() const;
    const char* what() const noexcept override { return fWhat.c_str(); }
    /// Puts a place in front, as "Items[3]".
    void AddPlace(const std::string& place) { fWhat = place + ": " + fWhat; }

private:
    std::string fWhat;
};

/// Runs an action; an exception of the library that leaves it carries the place.
template <class Action>
decltype(auto) AtPlace(const std::string& place, Action&& action) {
    try {
        return action();
    } catch (EVagrel& error) {
        error.AddPlace(place);
        throw;
    }
}

/// The refusal of a value of a file that names its key, the value and what is allowed: "InID: 7 is not allowed, only
/// ...".
template <class Error>
Error Refusal(const std::string& key, const std::string& value, const std::string& allowed) {
    return Error(key + ": " + value + " is not allowed, only " + allowed);
}

/// Misuse of an operation in the state that the object is in.
class EInvalidOperation : public EVagrel {
    using EVagrel::EVagrel;
};

/// A value outside the range that the document allows.
class EOutOfRange : public EVagrel {
    using EVagrel::EVagrel;
};

/// An argument outside the range that an operation takes.
class EArgumentOutOfRangeException : public EOutOfRange {
    using EOutOfRange::EOutOfRange;
};

/// Text that does not convert to the wanted type.
class EConvertError : public EVagrel {
    using EVagrel::EVagrel;
};

/// A file or stream that cannot be opened, read or written, or that ends too early.
class EStreamError : public EVagrel {
    using EVagrel::EVagrel;
};

/// Something that this version of the library does not have yet.
class ENotAvailable : public EVagrel {
    using EVagrel::EVagrel;
};

} // namespace vagrel
