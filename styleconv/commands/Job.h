// What surrounds a job that a command runs: the files that it asks for, its progress, its messages and its
// result.
#pragma once

#include "conversions/Conversion.h"
#include "conversions/Forms.h"
#include "conversions/reading/FileKind.h"
#include "styleconv/commands/CommandLine.h"
#include "styleconv/commands/Options.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace styleconv {

class InputFile;
struct SearchOptions;

/// Shape files as linetype files name them, and as drawings do; and no files for jobs that need none. Where
/// `writesToTerminal`, the result has the terminal for itself.
std::unique_ptr<conversions::Front> FrontForLinetypes(const SearchOptions& search, bool toStandardOutput);
std::unique_ptr<conversions::Front> FrontForDrawing(const SearchOptions& search, bool toStandardOutput);
std::unique_ptr<conversions::Front> FrontWithoutFiles(bool toStandardOutput);

/// Opens a file of any kind, which its name tells, or of a drawing else its contents. Drawings are read as
/// they come, for they may be large; what else there is, as a whole.
std::optional<diagnostics::Diagnostic> OpenForKind(InputFile& input, const std::string& path,
                                                   conversions::FileKind& kind);

/// Whether something is wrong with a part of the file alone, so that a tolerant conversion may help.
bool IsToleranceOfHelp(const diagnostics::Diagnostics& diagnostics);

/// Says what is wrong; what gave nothing is kInputFault.
ExitStatus SayProblem(const diagnostics::Diagnostic& problem);

/// Says all of a conversion that failed, and what helps.
ExitStatus SayFailure(const std::string& file, bool isTolerant, const diagnostics::Diagnostics& diagnostics);

/// False, with a message, when the encoding is not known; empty is one that is found out.
bool CheckEncoding(const std::string& encoding);

/// Writes a result, whole or not at all, to the path; empty is standard output.
ExitStatus WriteResult(const std::string& output,
                       const std::function<bool(const conversions::TextSink& sink)>& write);

/// False, with a message that ends with the advice, when the result is of one symbol and there are others.
bool CheckCount(const CommonOptions& options, conversions::Form form, std::size_t symbols,
                std::string_view advice);

/// What a page of symbols of that file is called.
std::string TitleOf(const std::string& file);

/// Says how many symbols have no parameter that the options could change.
void SayRestyled(const conversions::RestyledCounts& counts, const conversions::Restyling& restyling);

/// Says what a conversion told and writes its symbols.
ExitStatus Finish(conversions::Conversion conversion, const std::string& file, bool isTolerant,
                  const CommonOptions& options, conversions::Form form, conversions::Front& front);

/// The form that was asked for, or else the one that the end of the output's name tells; documents where
/// there is no end. None, with a message, where it is another, or where options of styles are given for
/// another form.
std::optional<conversions::Form> FormOf(const CommonOptions& options, bool faithful = false);

/// Writes by `write`, to which it gives how styles are made, and then says what those do not say of the
/// symbols. A form of several files takes the output as their folder.
ExitStatus
WriteForm(const CommonOptions& options, conversions::Form form, const std::string& file,
          const std::function<bool(const conversions::TextSink& sink, conversions::StyleJob& styles)>& write);

/// What the options ask for: styles are made of faithful symbols where nobody says otherwise.
encoding::Fidelity FidelityOf(bool faithful, const CommonOptions& options, conversions::Form form);

} // namespace styleconv
