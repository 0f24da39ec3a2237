// SPDX-License-Identifier: MIT
// The texts that reach a user, by key.
#pragma once

#include <string>
#include <string_view>

namespace vagrel {

/// One table of texts for the process, with English defaults that a language file replaces. Main thread.
///
/// Each lookup adds the prefix of its group to the key, as "err" to "EmptyText", and answers "not found" for a key that
/// the table lacks.
class TVGRMsg {
public:
    static std::u16string GetErrorValue(std::u16string_view aKey);
    static std::u16string GetInfoValue(std::u16string_view aKey);
    /// This group has no defaults.
    static std::u16string GetCommandValue(std::u16string_view aKey);
    static std::u16string GetPropValue(std::u16string_view aKey);
    static std::u16string GetDialogsValue(std::u16string_view aKey);
    static std::u16string GetEditorValue(std::u16string_view aKey);
    static std::u16string GetActionsValue(std::u16string_view aKey);
    static std::u16string GetListValue(std::u16string_view aKey);
    /// True when the table has a full key, as "errEmptyText".
    static bool Has(std::u16string_view fullKey);

    /// Resets all texts to the defaults, then takes those of a language file: INI form in UTF-8, one section for each
    /// group, lines of full key=text; keys that are new are added. Without such a file the defaults stay. Throws
    /// EStreamError when the file exists and cannot be read; the table is unchanged then.
    static void LoadResources(std::u16string_view aFileName);

    /// Writes all texts as a language file, a template for translators. Throws EStreamError.
    static void SaveToIniFile(std::u16string_view aFileName);
};

} // namespace vagrel
