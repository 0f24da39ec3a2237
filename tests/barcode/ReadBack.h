// SPDX-License-Identifier: MIT
// Modules painted into a picture and read by ZXing-C++; texts to be read.
#pragma once

#include <cstdint>
#include <random>
#include <span>
#include <string>
#include <string_view>

namespace vagrel {

/// What the symbol holds, as bytes, or the decoder's complaint in angle brackets. `format` is the decoder's name of the
/// kind; modules are rows of 1 for dark, `moduleHeight` times as high as wide.
std::string ReadBack(const char* format, std::span<const std::uint8_t> modules, int columns, int moduleHeight = 1);

/// `length` characters drawn from `alphabet`; an empty one stands for all 256 bytes.
std::string RandomText(std::mt19937& random, std::size_t length, std::string_view alphabet);

inline constexpr std::string_view Digits = "0123456789";
inline constexpr std::string_view Capitals = "ABCDEFGHIJKLMNOPQRSTUVWXYZ $%*+-./:0123456789";
inline constexpr std::string_view Printable = " !\"#$%&'()*+,-./0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[]^_`"
                                              "abcdefghijklmnopqrstuvwxyz{|}~";
inline constexpr std::string_view Bytes = "";

} // namespace vagrel
