// SPDX-License-Identifier: MIT
// Names of enumeration values as they stand in the code, for texts that name them.
#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace vagrel {

namespace detail {

// The compiler writes the value into the name of the function: "vagrel::eaLine", or "(vagrel::TKSLEdAction)99" for a
// value that has no name.
template <auto Value>
constexpr std::string_view NameInFunction() {
    constexpr std::string_view function = __PRETTY_FUNCTION__;
    constexpr std::string_view mark = "Value = ";
    constexpr std::size_t from = function.find(mark) + mark.size();
    constexpr std::string_view value = function.substr(from, function.find_first_of(";]", from) - from);
    return value.front() == '(' ? std::string_view() : value.substr(value.rfind(':') + 1);
}

template <class E, std::size_t... Positions>
constexpr auto NamesAt(std::index_sequence<Positions...>) {
    return std::array<std::string_view, sizeof...(Positions)>{NameInFunction<E(Positions)>()...};
}

// In the order of the values; empty behind the last one.
template <class E>
inline constexpr auto Names = NamesAt<E>(std::make_index_sequence<64>());

} // namespace detail

/// "eaLine"; empty for a value that has no name. The first 64 values have names.
template <class E>
constexpr std::string_view EnumName(E value) {
    return std::size_t(value) < detail::Names<E>.size() ? detail::Names<E>[std::size_t(value)] : std::string_view();
}

/// The value of this name, with regard to case.
template <class E>
constexpr std::optional<E> EnumValue(std::string_view name) {
    const auto found = std::ranges::find(detail::Names<E>, name);
    if (name.empty() || found == detail::Names<E>.end())
        return {};
    return E(found - detail::Names<E>.begin());
}

/// All names, with commas between them.
template <class E>
std::string EnumList() {
    std::string list;
    for (const std::string_view name : detail::Names<E>)
        if (!name.empty())
            (list += list.empty() ? "" : ", ") += name;
    return list;
}

} // namespace vagrel
