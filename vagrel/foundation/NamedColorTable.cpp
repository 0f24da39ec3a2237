// SPDX-License-Identifier: MIT
// The colour names of CSS Color Module Level 4, in alphabetical order.
#include <vagrel/foundation/Colors.h>
#include <vagrel/foundation/Text.h>

#include <algorithm>
#include <array>

namespace vagrel {

namespace {

struct TNamedColor {
    std::u16string_view name;
    TAlphaColor color;
};

// clang-format off
constexpr std::array<TNamedColor, 148> NamedColors{{
    {u"aliceblue", 0xFFF0F8FF},
    {u"antiquewhite", 0xFFFAEBD7},
    {u"aqua", 0xFF00FFFF},
    {u"aquamarine", 0xFF7FFFD4},
    {u"azure", 0xFFF0FFFF},
    {u"beige", 0xFFF5F5DC},
    {u"bisque", 0xFFFFE4C4},
    {u"black", 0xFF000000},
    {u"blanchedalmond", 0xFFFFEBCD},
    {u"blue", 0xFF0000FF},
    {u"blueviolet", 0xFF8A2BE2},
    {u"brown", 0xFFA52A2A},
    {u"burlywood", 0xFFDEB887},
    {u"cadetblue", 0xFF5F9EA0},
    {u"chartreuse", 0xFF7FFF00},
    {u"chocolate", 0xFFD2691E},
    {u"coral", 0xFFFF7F50},
    {u"cornflowerblue", 0xFF6495ED},
    {u"cornsilk", 0xFFFFF8DC},
    {u"crimson", 0xFFDC143C},
    {u"cyan", 0xFF00FFFF},
    {u"darkblue", 0xFF00008B},
    {u"darkcyan", 0xFF008B8B},
    {u"darkgoldenrod", 0xFFB8860B},
    {u"darkgray", 0xFFA9A9A9},
    {u"darkgreen", 0xFF006400},
    {u"darkgrey", 0xFFA9A9A9},
    {u"darkkhaki", 0xFFBDB76B},
    {u"darkmagenta", 0xFF8B008B},
    {u"darkolivegreen", 0xFF556B2F},
    {u"darkorange", 0xFFFF8C00},
    {u"darkorchid", 0xFF9932CC},
    {u"darkred", 0xFF8B0000},
    {u"darksalmon", 0xFFE9967A},
    {u"darkseagreen", 0xFF8FBC8F},
    {u"darkslateblue", 0xFF483D8B},
    {u"darkslategray", 0xFF2F4F4F},
    {u"darkslategrey", 0xFF2F4F4F},
    {u"darkturquoise", 0xFF00CED1},
    {u"darkviolet", 0xFF9400D3},
    {u"deeppink", 0xFFFF1493},
    {u"deepskyblue", 0xFF00BFFF},
    {u"dimgray", 0xFF696969},
    {u"dimgrey", 0xFF696969},
    {u"dodgerblue", 0xFF1E90FF},
    {u"firebrick", 0xFFB22222},
    {u"floralwhite", 0xFFFFFAF0},
    {u"forestgreen", 0xFF228B22},
    {u"fuchsia", 0xFFFF00FF},
    {u"gainsboro", 0xFFDCDCDC},
    {u"ghostwhite", 0xFFF8F8FF},
    {u"gold", 0xFFFFD700},
    {u"goldenrod", 0xFFDAA520},
    {u"gray", 0xFF808080},
    {u"green", 0xFF008000},
    {u"greenyellow", 0xFFADFF2F},
    {u"grey", 0xFF808080},
    {u"honeydew", 0xFFF0FFF0},
    {u"hotpink", 0xFFFF69B4},
    {u"indianred", 0xFFCD5C5C},
    {u"indigo", 0xFF4B0082},
    {u"ivory", 0xFFFFFFF0},
    {u"khaki", 0xFFF0E68C},
    {u"lavender", 0xFFE6E6FA},
    {u"lavenderblush", 0xFFFFF0F5},
    {u"lawngreen", 0xFF7CFC00},
    {u"lemonchiffon", 0xFFFFFACD},
    {u"lightblue", 0xFFADD8E6},
    {u"lightcoral", 0xFFF08080},
    {u"lightcyan", 0xFFE0FFFF},
    {u"lightgoldenrodyellow", 0xFFFAFAD2},
    {u"lightgray", 0xFFD3D3D3},
    {u"lightgreen", 0xFF90EE90},
    {u"lightgrey", 0xFFD3D3D3},
    {u"lightpink", 0xFFFFB6C1},
    {u"lightsalmon", 0xFFFFA07A},
    {u"lightseagreen", 0xFF20B2AA},
    {u"lightskyblue", 0xFF87CEFA},
    {u"lightslategray", 0xFF778899},
    {u"lightslategrey", 0xFF778899},
    {u"lightsteelblue", 0xFFB0C4DE},
    {u"lightyellow", 0xFFFFFFE0},
    {u"lime", 0xFF00FF00},
    {u"limegreen", 0xFF32CD32},
    {u"linen", 0xFFFAF0E6},
    {u"magenta", 0xFFFF00FF},
    {u"maroon", 0xFF800000},
    {u"mediumaquamarine", 0xFF66CDAA},
    {u"mediumblue", 0xFF0000CD},
    {u"mediumorchid", 0xFFBA55D3},
    {u"mediumpurple", 0xFF9370DB},
    {u"mediumseagreen", 0xFF3CB371},
    {u"mediumslateblue", 0xFF7B68EE},
    {u"mediumspringgreen", 0xFF00FA9A},
    {u"mediumturquoise", 0xFF48D1CC},
    {u"mediumvioletred", 0xFFC71585},
    {u"midnightblue", 0xFF191970},
    {u"mintcream", 0xFFF5FFFA},
    {u"mistyrose", 0xFFFFE4E1},
    {u"moccasin", 0xFFFFE4B5},
    {u"navajowhite", 0xFFFFDEAD},
    {u"navy", 0xFF000080},
    {u"oldlace", 0xFFFDF5E6},
    {u"olive", 0xFF808000},
    {u"olivedrab", 0xFF6B8E23},
    {u"orange", 0xFFFFA500},
    {u"orangered", 0xFFFF4500},
    {u"orchid", 0xFFDA70D6},
    {u"palegoldenrod", 0xFFEEE8AA},
    {u"palegreen", 0xFF98FB98},
    {u"paleturquoise", 0xFFAFEEEE},
    {u"palevioletred", 0xFFDB7093},
    {u"papayawhip", 0xFFFFEFD5},
    {u"peachpuff", 0xFFFFDAB9},
    {u"peru", 0xFFCD853F},
    {u"pink", 0xFFFFC0CB},
    {u"plum", 0xFFDDA0DD},
    {u"powderblue", 0xFFB0E0E6},
    {u"purple", 0xFF800080},
    {u"rebeccapurple", 0xFF663399},
    {u"red", 0xFFFF0000},
    {u"rosybrown", 0xFFBC8F8F},
    {u"royalblue", 0xFF4169E1},
    {u"saddlebrown", 0xFF8B4513},
    {u"salmon", 0xFFFA8072},
    {u"sandybrown", 0xFFF4A460},
    {u"seagreen", 0xFF2E8B57},
    {u"seashell", 0xFFFFF5EE},
    {u"sienna", 0xFFA0522D},
    {u"silver", 0xFFC0C0C0},
    {u"skyblue", 0xFF87CEEB},
    {u"slateblue", 0xFF6A5ACD},
    {u"slategray", 0xFF708090},
    {u"slategrey", 0xFF708090},
    {u"snow", 0xFFFFFAFA},
    {u"springgreen", 0xFF00FF7F},
    {u"steelblue", 0xFF4682B4},
    {u"tan", 0xFFD2B48C},
    {u"teal", 0xFF008080},
    {u"thistle", 0xFFD8BFD8},
    {u"tomato", 0xFFFF6347},
    {u"turquoise", 0xFF40E0D0},
    {u"violet", 0xFFEE82EE},
    {u"wheat", 0xFFF5DEB3},
    {u"white", 0xFFFFFFFF},
    {u"whitesmoke", 0xFFF5F5F5},
    {u"yellow", 0xFFFFFF00},
    {u"yellowgreen", 0xFF9ACD32},
}};
// clang-format on
static_assert(std::ranges::is_sorted(NamedColors, {}, &TNamedColor::name));

} // namespace

std::optional<TAlphaColor> NamedColor(std::u16string_view name) {
    const std::u16string lower = ToLower(name);
    if (lower == u"transparent")
        return 0;
    const auto found = std::ranges::lower_bound(NamedColors, std::u16string_view(lower), {}, &TNamedColor::name);
    if (found == NamedColors.end() || found->name != lower)
        return std::nullopt;
    return found->color;
}

} // namespace vagrel
