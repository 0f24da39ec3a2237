// SPDX-License-Identifier: MIT
// Date times through the system's time zone.
#pragma once

namespace vagrel {

/// A local date time as UTC and the reverse, in days since 1899-12-30.
double LocalToUtc(double value);
double UtcToLocal(double value);

} // namespace vagrel
