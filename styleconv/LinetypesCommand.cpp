#include "styleconv/LinetypesCommand.h"

#include "StyleConversion/linetype/CLinVisitor.h"
#include "StyleConversion/linetype/CLineConverterDep.h"
#include "StyleConversion/linetype/LinParser.h"
#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/platform/Files.h"
#include "StyleConversion/platform/Utf8.h"
#include "drawing/Database.h"
#include "drawing/HostServices.h"
#include "styleconv/AnnouncedLinetypes.h"
#include "styleconv/BuiltInFont.h"
#include "styleconv/DrawingFile.h"
#include "styleconv/LinetypeMessages.h"
#include "styleconv/Messages.h"
#include "styleconv/NumberOption.h"
#include "styleconv/Progress.h"
#include "styleconv/SymbolOutput.h"

#include <memory>
#include <string_view>
#include <utility>

namespace styleconv {
namespace {

struct LinetypesOptions : CommonOptions {
    std::string file;
    std::vector<std::string> names;
    std::string codePage;
    std::string drawing;
    std::vector<std::string> shapeFolders;
    double scale = 1.0;
};

constexpr const wchar_t* kDefaultStyle = L"STANDARD";
constexpr const wchar_t* kDefaultFont = L"txt.shx";

// Shape files as the services find them; the built-in font in place of the default style's, when that is
// nowhere.
class ShapeFiles : public LineConverter::IGetFile {
public:
    ShapeFiles(LineConverter::IGetFile& services, bool builtInFontStandsIn)
        : services_(services), builtInFontStandsIn_(builtInFontStandsIn) {}

    std::FILE* GetFile(const wchar_t* name, const wchar_t* extension) override {
        if (std::FILE* const stream = services_.GetFile(name, extension)) {
            return stream;
        }
        if (!builtInFontStandsIn_ || platform::CompareIgnoringCase(name, kDefaultFont) != 0) {
            return nullptr;
        }
        builtInFontUsed_ = true;
        return OpenBuiltInFont();
    }

    bool BuiltInFontUsed() const { return builtInFontUsed_; }

private:
    LineConverter::IGetFile& services_;
    bool builtInFontStandsIn_;
    bool builtInFontUsed_ = false;
};

// The drawing, the folders and the services over them that one command uses.
class Conversion {
public:
    Conversion(const InputFile& input, const LinetypesOptions& options)
        : input_(input), options_(options), searchDirectory_(FolderOf(input)),
          services_(WidePaths(options.shapeFolders)), dependencies_(&services_, searchDirectory_.c_str()),
          shapeFiles_(dependencies_, options.drawing.empty()), parser_(&dependencies_, &shapeFiles_) {
        sources_.linetypeFolder = platform::PathToBytes(searchDirectory_);
        sources_.searchPath = options.shapeFolders;
    }

    // False after saying why.
    bool ReadDrawing() {
        sources_.styles = options_.drawing.empty() ? "in the empty drawing that is used without --drawing"
                                                   : "in " + Shown(options_.drawing);
        if (options_.drawing.empty()) {
            auto drawing = std::make_unique<drawing::Database>();
            drawing::TextStyleData style;
            style.fileName = kDefaultFont;
            drawing->AddTextStyle(kDefaultStyle, std::move(style));
            drawing_ = std::move(drawing);
        } else {
            drawing_ = ReadDrawingFile(options_.drawing);
        }
        services_.setWorkingDatabase(drawing_.get());
        return drawing_ != nullptr;
    }

    // False after saying why.
    bool Convert(Symbols& symbols) {
        const LineConverter::LinResult parsed = parser_.Parse(input_.Path());
        if (shapeFiles_.BuiltInFontUsed()) {
            Say(input_.Name(), "note: font file txt.shx not found in " +
                                   FoldersSearched(kDefaultFont, sources_) +
                                   "; the built-in font stands in for it");
        }
        if (parsed != LineConverter::kSuccess) {
            SayLinetypeFaults(input_.Name(), parser_.faults(), sources_);
            return false;
        }
        LineConverter::CLinVisitor visitor(options_.scale, &parser_.faultLog());
        AnnouncedLinetypes announced(visitor);
        BeginStage("Converting", parser_.linetypes().size());
        const LineConverter::LinResult walked = parser_.Accept(announced);
        const std::unique_ptr<std::vector<TylModel::SymbolDefinition*>> results(visitor.TakeResults());
        for (std::size_t i = 0; results && i < results->size(); ++i) {
            symbols.emplace_back((*results)[i]);
        }
        if (walked != LineConverter::kSuccess || !results) {
            SayLinetypeFaults(input_.Name(), parser_.faults(), sources_);
            return false;
        }
        return true;
    }

private:
    // Nothing is beside standard input.
    static std::wstring FolderOf(const InputFile& input) {
        if (input.IsStandardInput()) {
            return {};
        }
        const platform::PathParts parts = platform::SplitPath(input.Path());
        return parts.drive + parts.directory;
    }

    static std::vector<std::wstring> WidePaths(const std::vector<std::string>& folders) {
        std::vector<std::wstring> wide;
        wide.reserve(folders.size());
        for (const std::string& folder : folders) {
            wide.push_back(platform::PathFromBytes(folder));
        }
        return wide;
    }

    const InputFile& input_;
    const LinetypesOptions& options_;
    std::wstring searchDirectory_;
    std::unique_ptr<drawing::Database> drawing_;
    drawing::HostServices services_;
    LineConverter::CLineConverterDep dependencies_;
    ShapeFiles shapeFiles_;
    LineConverter::LinParser parser_;
    LinetypeSources sources_;
};

void SayThereAreNoLinetypes(const InputFile& input) {
    constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";
    if (input.Bytes().starts_with(kByteOrderMark)) {
        SayAtLine(input.Name(), 1,
                  "the file has no linetypes: a UTF-8 byte-order mark stands before its first character and "
                  "hides a header there; save the file without it");
    } else {
        Say(input.Name(), "the file has no linetypes: no line begins with \"*\" and a name");
    }
}

// Those asked for, in the order asked. False, after saying so, when one is not there.
bool ChooseNamed(const InputFile& input, const std::vector<std::string>& names, const Symbols& symbols,
                 std::vector<TylModel::SymbolDefinition*>& chosen) {
    bool complete = true;
    for (const std::string& name : names) {
        const std::wstring wide = platform::Utf8ToWide(name);
        const std::size_t before = chosen.size();
        for (const auto& symbol : symbols) {
            if (symbol->GetName() == wide) {
                chosen.push_back(symbol.get());
            }
        }
        if (chosen.size() == before) {
            Say(input.Name(), "the file has no linetype named " + Shown(name));
            complete = false;
        }
    }
    return complete;
}

ExitStatus Linetypes(const LinetypesOptions& options) {
    InputFile input(options.file);
    if (!input.Read() || !input.ProvidePath()) {
        return kInputFault;
    }
    if (!ChooseCodePage(input, options.codePage)) {
        return kUsageFault;
    }
    Conversion conversion(input, options);
    Symbols symbols;
    if (!conversion.ReadDrawing() || !conversion.Convert(symbols)) {
        return kInputFault;
    }
    if (symbols.empty()) {
        SayThereAreNoLinetypes(input);
        return kInputFault;
    }
    if (options.names.empty()) {
        return WriteSymbols(symbols, options);
    }
    std::vector<TylModel::SymbolDefinition*> chosen;
    return ChooseNamed(input, options.names, symbols, chosen) ? WriteSymbols(chosen, options) : kInputFault;
}

} // namespace

void AddLinetypesCommand(CLI::App& app, Runner& runner) {
    const auto options = std::make_shared<LinetypesOptions>();
    CLI::App* const command = app.add_subcommand("linetypes", "Convert the linetypes of a .lin file");
    command->add_option("FILE", options->file, "A linetype file, or - for standard input")->required();
    AddNameOption(*command, options->names, "Convert only the linetypes of this name; may be given again");
    AddNumberOption(*command, "--scale", options->scale, "Multiply all lengths by this (default: 1)");
    command
        ->add_option("--drawing", options->drawing,
                     "Take text styles from this drawing document (default: one style STANDARD with txt.shx)")
        ->type_name("DRAWING.json");
    AddShapesOption(*command, options->shapeFolders);
    AddCodePageOption(*command, options->codePage);
    AddCommonOptions(*command, *options);
    command->callback([options, &runner] { runner = [options] { return Linetypes(*options); }; });
}

bool ListLinetypes(const InputFile& input, std::vector<std::string>& names) {
    LineConverter::LinParser parser(nullptr, nullptr);
    if (parser.Read(input.Path()) != LineConverter::kSuccess) {
        SayLinetypeFaults(input.Name(), parser.faults(), {});
        return false;
    }
    for (const LineConverter::LinetypeRecord& record : parser.linetypes()) {
        names.push_back(platform::WideToValidUtf8(platform::AnsiToWide(record.name)));
    }
    if (names.empty()) {
        SayThereAreNoLinetypes(input);
    }
    return !names.empty();
}

} // namespace styleconv
