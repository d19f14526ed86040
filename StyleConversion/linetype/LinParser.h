// Reads a linetype file and resolves the text styles and SHX files that it names.
#pragma once

#include "StyleConversion/linetype/LinFaults.h"
#include "StyleConversion/linetype/LinLineReader.h"
#include "StyleConversion/linetype/LinPolicy.h"
#include "StyleConversion/linetype/LinResult.h"
#include "StyleConversion/linetype/LinStyleVisitor.h"
#include "StyleConversion/linetype/LinetypeRecord.h"
#include "StyleConversion/linetype/Services.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <map>
#include <memory_resource>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace LineConverter {

/// A linetype file in memory. Not to be used again after a failure before Clear.
///
/// Under a policy that keeps faults local, reading and resolving fail only where the file cannot be opened,
/// read to its end or closed, or memory runs out; what cannot be used of it is in the faults and not in the
/// linetypes.
class LinParser {
public:
    /// Both are borrowed and may be null: then no file may name a text style, or a shape file.
    LinParser(IGetFontInfo* fontInfoProvider, IGetFile* fileProvider, const LinPolicy& policy = {});
    ~LinParser();
    LinParser(const LinParser&) = delete;
    LinParser& operator=(const LinParser&) = delete;

    /// Read, then Resolve.
    LinResult Parse(const std::wstring& path);

    /// Reads all linetypes of a file. After a failure the linetypes before it stay, and the file stays open,
    /// until Clear.
    LinResult Read(const std::wstring& path);
    /// Asks for the text styles, then loads the shape files and SHX fonts, that the linetypes name, each in
    /// the order of its name.
    LinResult Resolve();

    /// Closes the file if it is still open and forgets everything.
    void Clear();

    /// Shows the linetypes to `visitor`. kShapeFileNotLoaded when a shape was left out because its file is
    /// not a plain shape library; the walk is never cut short.
    LinResult Accept(LinStyleVisitor& visitor);

    const std::vector<LinetypeRecord>& linetypes() const { return linetypes_; }
    /// The line of that linetype's header, and of its element, both counted from 0.
    std::uint64_t HeaderLine(std::size_t linetype) const { return lines_[linetype].header; }
    std::uint64_t ElementLine(std::size_t linetype, std::size_t element) const {
        return elementLines_[lines_[linetype].firstElement + element];
    }
    const FontInfoMap& fontInfos() const { return fontInfos_; }
    const ShapeFileMap& shapeFiles() const { return shapeFiles_; }

    /// Why the last operations failed. A visitor may add to it during a walk.
    LinFaultLog& faultLog() { return faultLog_; }
    const std::vector<LinFault>& faults() const { return faultLog_.faults(); }

private:
    // The element, counted from 0, that first names a style or file.
    struct Reference {
        std::size_t linetype = 0;
        std::size_t element = 0;
    };
    // Which kinds of SHX file will do under a name.
    struct ShapeFileReference {
        std::uint32_t acceptedKinds = 0;
        Reference first;
    };
    struct LinetypeLines {
        std::uint64_t header = 0;
        std::size_t firstElement = 0; // in elementLines_
    };

    LinResult ReadLinetypes();
    LinResult ReadLinetype(const char* header);
    void DropLastLinetype();
    LinResult ReadPattern(LinetypeRecord& record);
    const char* ReadPatternLine();
    LinResult ReadAlignment(const char*& cursor);
    bool MoreElementsFollow(const char*& cursor);
    LinResult ReadElement(const char*& cursor, LinElement& element);
    LinResult ReadComplexElement(const char*& cursor, LinElement& element);
    // Each reads one part of an element and leaves `cursor` behind it, or where it fails: from behind the
    // opening quote to the "]" after a text, from behind the "[" to the "]" after a shape, and from behind a
    // style or shape file to the "]".
    LinResult ParseTextElement(const char*& cursor, ComplexElement& element);
    LinResult ParseStyle(const char*& cursor, ComplexElement& element);
    bool StyleIsLeftOut(const char*& cursor);
    LinResult ParseShapeElement(const char*& cursor, ComplexElement& element);
    LinResult ParseTransform(const char*& cursor, ElementTransform& transform);
    LinResult ParseTransformField(const char*& cursor, ElementTransform& transform);
    // What a loose form allows, each told to the fault log.
    void SkipBlanks(const char*& cursor);
    std::string_view WithoutBlanks(const char* start, const char* end);
    void NoteCharacterCodes(const std::string& text, const char* at);
    void Forgive(LinFaultKind kind, const char* cursor);
    void CollectReferences();
    LinResult ResolveStyles();
    LinResult ResolveStyle(const std::wstring& styleName, const Reference& reference);
    LinResult LoadShapeFiles();
    LinResult LoadOneShapeFile(const std::wstring& name, std::uint32_t acceptedKinds);
    void DropUnresolvedLinetypes();
    bool IsResolved(std::size_t linetype);
    // What the element needs and does not have.
    std::optional<LinFault> MissingFor(const LinElement& element) const;
    // False when the element is a shape that had to be left out.
    bool WalkElement(const LinElement& element, LinStyleVisitor& visitor);

    LinPlace PlaceOf(const Reference& reference) const;
    // Whether that failure ends everything, under the policy.
    bool EndsReading(LinResult result) const {
        return result != kSuccess && (!policy_.faultsStayLocal || result == kOutOfMemory);
    }
    // A syntax error that lies at `cursor`.
    LinResult SyntaxError(LinFaultKind kind, const char* cursor);
    LinResult Fault(LinResult result, LinFaultKind kind, const std::wstring& subject = {});

    // Of the linetypes' elements: files may have many thousands of short lists.
    std::pmr::monotonic_buffer_resource elementMemory_;

    std::FILE* stream_ = nullptr;
    std::vector<LinetypeRecord> linetypes_;
    FontInfoMap fontInfos_;
    ShapeFileMap shapeFiles_;
    IGetFile* fileProvider_;
    IGetFontInfo* fontInfoProvider_;

    LinPolicy policy_;
    LinLineReader reader_;
    std::map<std::wstring, Reference, Utf16Less> styleReferences_;
    std::map<std::wstring, ShapeFileReference, Utf16Less> shapeFileReferences_;
    // Of every element of every linetype, one after the other.
    std::vector<std::uint64_t> elementLines_;
    std::vector<LinetypeLines> lines_; // of each linetype
    // What went wrong with styles and files by their names, where it loses only the linetypes that need them.
    std::map<std::wstring, LinFault, Utf16Less> missingStyles_;
    std::map<std::wstring, LinFault, Utf16Less> missingFiles_;
    // What was forgiven at a line already is not told again.
    std::uint64_t forgivenLine_ = 0;
    std::uint64_t forgivenKinds_ = 0;
    LinFaultLog faultLog_;
};

} // namespace LineConverter
