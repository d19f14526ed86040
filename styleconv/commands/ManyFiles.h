// Commands on many files: one result, and at the end what became of them.
#pragma once

#include "conversions/Conversion.h"
#include "conversions/Forms.h"
#include "conversions/Linetypes.h"
#include "conversions/reading/FileKind.h"
#include "diagnostics/Diagnostic.h"
#include "styleconv/commands/CommandLine.h"
#include "styleconv/commands/Options.h"
#include "styleconv/files/InputFile.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace styleconv {

/// Adds --all-or-nothing to a converting command.
void AddAllOrNothingOption(Command& command, bool& allOrNothing);

/// Converts one file, which is open, to symbols.
using ConvertFile = std::function<conversions::Conversion(const InputFile& input, conversions::FileKind kind,
                                                          conversions::Front& front)>;
/// What a file's conversion asks of the tool.
using MakeFront =
    std::function<std::unique_ptr<conversions::Front>(const std::string& file, conversions::FileKind kind)>;

struct FilesToConvert {
    std::vector<std::string> files;
    conversions::FileKind kind =
        conversions::FileKind::kUnknown;  // of all; by their names where it is unknown
    std::vector<std::string> folders;     // that were given, where some of the files are
    diagnostics::Diagnostics diagnostics; // what was told when they were looked for
    std::size_t others = 0;               // files that were not taken
    std::size_t repeated = 0;             // files that were given again
    bool allOrNothing = false;
    bool isTolerant = false;
    std::vector<std::wstring> names; // of a symbols document, only those; all where it is empty
    bool tellsOrigins = true;        // of the symbols, in a document
};

FilesToConvert FilesOfKind(conversions::FileKind kind, const std::vector<std::string>& files,
                           bool allOrNothing, bool isTolerant);

/// Converts the files, writes one result, and says what became of them. A file that fails fails alone, with
/// status 1; then nothing is written where it is all or nothing.
ExitStatus ConvertFiles(const FilesToConvert& files, const ConvertFile& convert, const MakeFront& makeFront,
                        const CommonOptions& options, conversions::Form form);

/// Linetypes whose text styles come from where the options say.
conversions::Conversion ConvertWithStyles(const conversions::Input& input, conversions::LinetypesOptions job,
                                          const StyleOptions& options, conversions::Front& front);

/// False, with a message, when standard input is among several files, or parts of one file are asked for.
bool CheckSeveralFiles(const std::vector<std::string>& files, const std::string& selection, bool isSelected);

/// Whether it is a symbols document that stands among files of one kind: by the end of its name, .json, and
/// by what it begins with.
bool IsSymbolsDocument(const std::string& path);

/// Whether any of the files is one.
bool AreSymbolsAmong(const std::vector<std::string>& files);

/// An option that says how symbols are made, and whether it is given.
struct MakingOption {
    const char* name;
    bool isGiven;
};

/// False, with a message, where one of the files is a symbols document, whose symbols are made already.
bool CheckMakingOptions(const std::vector<std::string>& files, const std::vector<MakingOption>& options);

/// Says that the folders that were given hold nothing to work on.
void SayNoFiles();

/// "1 file", "2 files".
std::string Counted(std::size_t count, const std::string& what);

} // namespace styleconv
