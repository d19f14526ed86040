// What the page's worker calls: options, files one by one, then a document of all their symbols.
#include "c/Jobs.h"
#include "conversions/Gathering.h"
#include "documents/DiagnosticsDocument.h"

#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

// The worker answers by styleconversion_answer_file where it has the file.
extern "C" __attribute__((import_module("page"), import_name("find"))) void
FindInPage(const char* name, styleconversion_answer* answer);

namespace {

struct Run {
    c_interface::Options options;
    conversions::Gathering gathering;
    conversions::StyleJob styles;
    std::size_t files = 0;
};

std::unique_ptr<Run> run;
std::string text;

void Find(void* /*context*/, const char* name, styleconversion_answer* answer) {
    FindInPage(name, answer);
}

// The text that the worker takes, and its size.
std::size_t Give(std::string given) {
    text = std::move(given);
    return text.size();
}

} // namespace

extern "C" {

__attribute__((export_name("allocate"))) void* Allocate(std::size_t size) {
    return std::malloc(size);
}

__attribute__((export_name("release"))) void Release(void* bytes) {
    std::free(bytes);
}

/// Where the text of the last call begins.
__attribute__((export_name("text"))) const char* Text() {
    return text.data();
}

/// Begins anew. `options` as for styleconversion_convert. What is wrong with them is the text.
__attribute__((export_name("begin"))) std::size_t Begin(const char* options) {
    run = std::make_unique<Run>();
    return Give(c_interface::ReadOptions(options, c_interface::Job::kConvert, run->options));
}

/// A folder that is given as a whole, before the files in it.
__attribute__((export_name("add_folder"))) void AddFolder(const char* name) {
    run->styles.folders.emplace_back(name);
}

/// Whether a file in a folder is of a kind that is converted: documents of many programs end in .json.
__attribute__((export_name("is_known"))) bool IsKnown(const char* name, const char* bytes, std::size_t size) {
    const conversions::FileKind kind = conversions::KindByName(name);
    const std::string_view start = std::string_view(bytes, size).substr(0, 1U << 12U);
    return kind == conversions::FileKind::kDrawing
               ? conversions::IsDxf(name, start) ||
                     conversions::KindByContents(start) != conversions::FileKind::kUnknown
               : kind != conversions::FileKind::kUnknown;
}

/// Converts a file.
__attribute__((export_name("add_file"))) void AddFile(const char* name, const char* bytes, std::size_t size) {
    conversions::Input input;
    input.name = name;
    input.bytes = {bytes, size};
    input.encoding = run->options.encoding;
    c_interface::CallbackFront front(Find, nullptr);
    const conversions::FileKind kind = c_interface::KindOf(input, run->options);
    conversions::Conversion conversion = c_interface::ConvertKind(kind, input, run->options, front);
    conversion.captions.title = c_interface::TitleOf(input.name);
    run->gathering.Add(input.name, kind, std::move(conversion));
    run->styles.file = ++run->files == 1 ? input.name : "symbols.xml";
}

/// Writes all symbols in the form of the options; nothing without symbols, or where the form is of one and
/// there are others.
__attribute__((export_name("write"))) std::size_t Write() {
    std::string document;
    const bool isOfOne = run->options.form == conversions::Form::kQml;
    if (run->gathering.HasSymbols() && (!isOfOne || run->gathering.SymbolCount() == 1)) {
        c_interface::CallbackFront front(Find, nullptr);
        const auto append = [&](std::string_view piece) {
            document += piece;
            return true;
        };
        const bool tellsOrigins = run->files > 1 || !run->styles.folders.empty();
        run->gathering.Write(run->options.form, tellsOrigins, append, front, &run->styles);
    }
    return Give(std::move(document));
}

/// How many symbols there are.
__attribute__((export_name("symbols"))) std::size_t Symbols() {
    return run->gathering.SymbolCount();
}

/// What there is to say, as docs/schemas/findings.schema.json describes it.
__attribute__((export_name("diagnostics"))) std::size_t Diagnostics() {
    diagnostics::Diagnostics told = run->gathering.Told();
    MergeAlike(run->styles.diagnostics);
    Append(told, run->styles.diagnostics);
    return Give(documents::DiagnosticsText(told));
}

__attribute__((export_name("answer"))) void Answer(styleconversion_answer* answer, const char* bytes,
                                                   std::size_t size) {
    answer->isGiven = true;
    answer->bytes.assign(bytes, size);
}
}
