// SPDX-License-Identifier: MIT
// The data source that the arguments of a command name.
#pragma once

#include <vagrel/foundation/Enumerations.h>

#include <memory>
#include <string>
#include <vector>

namespace CLI {
class App;
} // namespace CLI

namespace vagrel {
class HostLabel;
class IKSLDataset;
} // namespace vagrel

namespace vagrel::cli {

/// The arguments. Files named "-" are read from standard input.
struct TSourceArguments {
    std::string csv, json, sqlite;
    std::string source; ///< of JSON
    std::string table;  ///< of SQLite
    std::string encoding;
    std::string repeat;
    int separator = scvNone;
    int quote = scqDoubleQuotes;
    bool noHeader = false;

    bool Given() const { return !csv.empty() || !json.empty() || !sqlite.empty(); }
};

void AddSourceOptions(CLI::App& command, TSourceArguments& arguments);

/// Connects a document to its source; it must outlive the document's merge. Records that are wanted no time are left
/// out. Without a source in the arguments the document keeps the one that it was saved with. Throws EVagrel for what is
/// missing or cannot be read.
class Source {
public:
    Source(HostLabel& label, const TSourceArguments& arguments);
    ~Source();

private:
    void ConnectCsv(const TSourceArguments& arguments);
    void ConnectJson(const TSourceArguments& arguments);
    void ConnectSqlite(const TSourceArguments& arguments);
    /// A temporary file with these bytes.
    const std::string& Keep(const std::string& bytes);

    HostLabel& fLabel;
    std::unique_ptr<IKSLDataset> fDataset;
    std::string fTemporary;
};

} // namespace vagrel::cli
