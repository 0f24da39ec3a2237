// SPDX-License-Identifier: MIT
// What a document was at some point, as far as it has changed since: the value of a transaction's command.
#pragma once

#include <vagrel/document/TListLog_p.h>
#include <vagrel/document/TVGRLayer.h>

#include <string>

namespace vagrel {
class TVGRCounter;
class TVGRDimStyle;
} // namespace vagrel

namespace vagrel::detail {

struct TStateLog {
    std::u16string name, author;
    TListLog<TVGRBaseItem> items;
    TListLog<TVGRLayer> layers;
    TListLog<TVGRDimStyle> styles;
    TListLog<TVGRCounter> counters;
    /// Of the document's own fields, the measure, the background, the settings and the print info; empty when they have
    /// not changed. They are few and have public fields: their image is taken at the beginning.
    TImage page;
    /// Of the definitions of data; empty when they have not changed.
    TImage data;

    // What going back restores while the log is open.
    std::int32_t maxID = 0;
    bool modified = false;
    bool inGroup = false;
    std::int32_t group = 0;
};

} // namespace vagrel::detail
