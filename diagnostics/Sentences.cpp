#include "diagnostics/Sentences.h"

#include "diagnostics/ShownText.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace diagnostics {
namespace {

struct Row {
    Code code;
    std::string_view name;
    // What is wrong. "{0}" is the first subject; "{entities}" is "1 entity" or "2 entities", and "{is}" and
    // "{has}" agree with it; "{part}" is the last subject.
    std::string_view sentence;
    // Where nothing became of it: what a strict conversion makes of it, or what to do. May be empty.
    std::string_view strictly;
    // What it was read as.
    std::string_view repaired;
    bool hasOneCause = false;
};

// clang-format off
constexpr auto kRows = std::to_array<Row>({
    // Files, and what was asked for of them.
    {Code::kMissingFile, "missing-file",
     "not found", "", ""},
    {Code::kUnreadableFile, "unreadable-file",
     "cannot be read: {0}", "", ""},
    {Code::kUnknownFileKind, "unknown-file-kind",
     "unknown kind of file: the name must end in .lin, .pat, .shx, .json or .dxf", "", ""},
    {Code::kWrongFileKind, "wrong-file-kind",
     "this is a {0}, not a {1}; {2}", "", ""},
    {Code::kOtherEncoding, "other-encoding",
     "the file is UTF-16; save it as UTF-8", "", ""},
    {Code::kZipArchive, "zip-archive",
     "the file is a ZIP archive; unpack it, and give what is in it", "", ""},
    {Code::kOutOfMemory, "out-of-memory",
     "not enough memory", "", ""},
    {Code::kByteOrderMark, "byte-order-mark",
     "a UTF-8 byte-order mark hides the header behind it", "save the file without it", "skipped"},
    {Code::kNoLinetypes, "no-linetypes",
     R"(the file has no linetypes: no line begins with "*" and a name)", "", ""},
    {Code::kNoPatterns, "no-patterns",
     R"(the file has no patterns: no line begins with "*")", "", ""},
    {Code::kNoShapes, "no-shapes",
     "the file has no shapes", "", ""},
    {Code::kNoBlocks, "no-blocks",
     "the drawing has no block to convert", "layouts and anonymous blocks are converted only by --name", ""},
    {Code::kNoSymbols, "no-symbols",
     "the document has no symbols", "", ""},
    {Code::kOnlyModelSpace, "only-model-space",
     "the drawing has no block to convert, but a model space with {0} entities", "--model-space converts it", ""},
    {Code::kNoModelSpace, "no-model-space",
     "the drawing has no model space", "", ""},
    {Code::kMissingName, "missing-name",
     "there is no {0} named {1}", "", ""},
    {Code::kMissingNumber, "missing-number",
     "there is no shape {0}", "", ""},
    {Code::kNothingConverted, "nothing-converted",
     "none of the {0} can be converted", "", ""},
    {Code::kUnreadableFolder, "unreadable-folder",
     "the folder cannot be read: {0}", "", ""},
    {Code::kNameOfAnotherFile, "name-of-another-file",
     "the name is already used by another symbol", "", "the file is added to it", true},
    {Code::kOtherFidelity, "other-fidelity",
     "its symbols are {0}, those of the files before {1}; convert it alone, or the others {2} --faithful", "", ""},
    {Code::kSymbolsOfOtherKinds, "symbols-of-other-kinds",
     "{0} of its {1} symbols are not of the kind {2}", R"("styleconv convert" takes them all)", "skipped"},
    // Linetype files: syntax. The subject is the line.
    {Code::kHeaderWithoutPattern, "header-without-pattern",
     "header without a pattern", "", ""},
    {Code::kIncompletePattern, "incomplete-pattern",
     "the pattern ends with a comma", "", ""},
    {Code::kMissingAlignment, "missing-alignment",
     R"(expected "A," or "S," at the start of the pattern: {0})", "", ""},
    {Code::kInvalidDash, "invalid-dash",
     R"(expected a dash length or "[": {0})", "", ""},
    {Code::kUnclosedElement, "unclosed-element",
     R"(expected "," or "]": {0})", "", ""},
    {Code::kTextWithoutStyle, "text-without-style",
     R"(missing text style, as in ["TEXT",STANDARD]: {0})", "", "read as STANDARD"},
    {Code::kUnclosedText, "unclosed-text",
     "missing closing quote: {0}", "", ""},
    {Code::kUnclosedStyle, "unclosed-style",
     R"(expected "," or "]" after the text style: {0})", "", ""},
    {Code::kEmptyStyle, "empty-style",
     "missing name of the text style: {0}", "", ""},
    {Code::kMissingShapeFileName, "missing-shape-file-name",
     R"(expected "," and a shape file after the shape name: {0})", "", ""},
    {Code::kUnclosedShapeFile, "unclosed-shape-file",
     R"(expected "," or "]" after the shape file: {0})", "", ""},
    {Code::kEmptyShapeFile, "empty-shape-file",
     "missing name of the shape file: {0}", "", ""},
    {Code::kUnknownField, "unknown-field",
     "expected A=, R=, S=, X= or Y=: {0}", "", ""},
    {Code::kMissingEqualsSign, "missing-equals-sign",
     R"(expected "=": {0})", "", ""},
    {Code::kInvalidField, "invalid-field",
     "expected a number: {0}", "", ""},
    {Code::kUnitNotAllowed, "unit-not-allowed",
     "units (d, g, r) are allowed only with A= and R=: {0}", "", ""},
    // Linetype files: forms that --tolerant reads.
    {Code::kLongLinetypeLine, "long-linetype-line",
     "the line has more than {0} bytes", "it is cut into pieces", "read as one line"},
    {Code::kHeaderWithoutName, "header-without-name",
     "header without a name", "", "skipped"},
    {Code::kIndentedHeader, "indented-header",
     "a header must begin in the first column", "", "skipped"},
    {Code::kPatternWithoutHeader, "pattern-without-header",
     "pattern without a header", "", "skipped"},
    {Code::kUnexpectedLine, "unexpected-line",
     R"(neither a header nor a pattern: a pattern begins with "A,")", "", "skipped"},
    {Code::kLowerCaseAlignment, "lower-case-alignment",
     "the alignment letter must be in upper case", "", "read as upper case"},
    {Code::kUnexpectedBlank, "unexpected-blank",
     "a blank is not allowed here", "", "skipped"},
    {Code::kUnexpectedComma, "unexpected-comma",
     R"(unexpected comma before "]")", "", "skipped"},
    {Code::kEscapedQuote, "escaped-quote",
     R"(a "\" before a quote does not escape it)", "", "read as the quote alone"},
    {Code::kUprightKey, "upright-key",
     "unknown key U= (upright text)", "write R=, or use --tolerant", "read as R= in the whole file", true},
    {Code::kSemicolonInText, "semicolon-in-text",
     R"(a ";" in a text begins a comment)", "", "read as part of the text"},
    {Code::kCharacterCode, "character-code",
     "a \\U+ code is not read as a character", "", "read as one"},
    {Code::kTextAfterPattern, "text-after-pattern",
     "the pattern ends here, as no comma follows; not read: {0}", "", ""},
    // Names that linetypes use.
    {Code::kInvalidEncoding, "invalid-encoding",
     "{0} has characters that are not in the encoding of the file", "", ""},
    {Code::kMissingTextStyle, "missing-text-style",
     "text style {0} not found in {1}", "", "STANDARD is used instead", true},
    {Code::kUnknownTextStyle, "unknown-text-style",
     "text style {0} not found: without a drawing there is only {1}", "add --drawing with the drawing that has it, or give it a font with --font STYLE=FONT", "STANDARD is used instead", true},
    {Code::kMissingShapeFile, "missing-shape-file",
     "shape file {0} not found {1}", "", "", true},
    {Code::kMissingFontFile, "missing-font-file",
     "font file {0} of text style {1} not found {2}", "", "", true},
    {Code::kInvalidShapeFile, "invalid-shape-file",
     "{0} cannot be read: {1}", "", "", true},
    {Code::kShapeFileIsFont, "shape-file-is-font",
     "shape file {0} is a font", "shapes cannot be taken from fonts", "", true},
    {Code::kMissingShape, "missing-shape",
     "shape file {0} has no shape {1}", "", "", true},
    {Code::kFontNotLoaded, "font-not-loaded",
     "font {0} of text style {1} was not loaded", "", "", true},
    {Code::kNotAFont, "not-a-font",
     "font {0} of text style {1} is not a font: it has no font information (shape 0)", "", "", true},
    {Code::kFontHeightZero, "font-height-zero",
     "font {0} of text style {1} has height 0", "", "", true},
    {Code::kMissingCharacters, "missing-characters",
     "font {0} has no characters for {1}", "", "left out"},
    {Code::kBuiltInFont, "built-in-font",
     "font file {0} not found {1}", "the built-in font is used instead", "the built-in font is used instead", true},
    {Code::kAssumedStandard, "assumed-standard",
     "text style STANDARD not found in {0}", "", "assumed, with font txt.shx", true},
    // Linetypes that will surprise.
    {Code::kDuplicateName, "duplicate-name",
     "the name is already used in line {0}", "", ""},
    {Code::kSimilarName, "similar-name",
     "the name differs only in case from the name in line {0}", "", ""},
    {Code::kBlankName, "blank-name",
     "the name consists of blanks", "", ""},
    {Code::kBlankAroundName, "blank-around-name",
     "the blank before or after the name is part of it", "", ""},
    {Code::kNoPatternLength, "no-pattern-length",
     "the pattern has no length and cannot repeat", "", ""},
    {Code::kGapsOnly, "gaps-only",
     "the pattern has only gaps and draws nothing", "", ""},
    {Code::kStartsWithGap, "starts-with-gap",
     "the pattern begins with a gap", "CAD systems begin and end a line with a dash", ""},
    {Code::kWiderThanGap, "wider-than-gap",
     "{0} is {1} wide, its gap only {2}", "", ""},
    {Code::kFixedWiderThanGap, "fixed-wider-than-gap",
     "{0} is {1} wide where the line runs along it, its gap only {2}", "", ""},
    {Code::kUnusedShapes, "unused-shapes",
     "no linetype uses these shapes of {0}: {1}", "", ""},
    // Pattern files.
    {Code::kLongPatternLine, "long-pattern-line",
     "the line has more than {0} characters", "nothing from here on is read: shorten the line", "read whole"},
    {Code::kBlankLine, "blank-line",
     "line of blanks", "read as a family of zeros", "skipped"},
    {Code::kIndentedComment, "indented-comment",
     R"(blank before ";")", "the comment is read as a family of zeros", "skipped"},
    {Code::kIndentedPattern, "indented-pattern",
     R"(blank before "*")", "the header is read as a family of zeros", "skipped"},
    {Code::kCommentBehind, "comment-after-data",
     R"(";" begins a comment only at the start of a line)", "", "read as a comment"},
    {Code::kEmptyNumber, "empty-number",
     "missing number", "read as 0", "it ends the dashes, or is read as 0 before them"},
    {Code::kInvalidNumber, "invalid-number",
     R"("{0}" is not a number)", "read as 0", "read as 0"},
    {Code::kTextAfterNumber, "text-after-number",
     R"("{0}" is not a number)", "only its start is read", "only its start is read"},
    {Code::kTooFewNumbers, "too-few-numbers",
     "a family needs five numbers before its dashes", "missing ones are read as 0", "missing ones are read as 0"},
    {Code::kFamilyWithoutHeader, "family-without-header",
     "family before the first header", "it belongs to no pattern", "skipped"},
    {Code::kScaledUnits, "scaled-units",
     "the file is in another unit", "", "lengths from here on are scaled"},
    {Code::kIgnoredUnits, "ignored-units",
     "the file says that its lengths are in {0}; conversions ignore that", "--units {1} scales them", ""},
    {Code::kNoFileUnit, "no-file-unit",
     "the file does not say its unit", "--units scales nothing: a line ;%UNITS=MM or ;%UNITS=INCH says it", ""},
    {Code::kOutOfPlace, "out-of-place",
     "drawn up to {0} out of place{1}", "--faithful draws it", ""},
    {Code::kLostFamilies, "lost-families",
     "{0} of {1} families not drawn, as no rectangle of a strict symbol repeats them{2}", "--faithful draws all", ""},
    {Code::kEmptyPattern, "empty-pattern",
     "the pattern has no lines", "", ""},
    {Code::kPatternWithoutTile, "pattern-without-tile",
     "the pattern has no repeat tile: no rectangle of a strict symbol repeats its lines (--faithful draws it)", "", ""},
    {Code::kTinyTile, "tiny-tile",
     "the repeat tile of the pattern is too small to draw: its sides are shorter than 0.0001", "", ""},
    {Code::kDuplicatePattern, "duplicate-pattern",
     "the name is already used in line {0}", "both make one pattern", ""},
    {Code::kUnplacedFamily, "unplaced-family",
     "the numbers of the family are too large or too small to draw its lines", "", "skipped"},
    {Code::kMissedTile, "missed-tile",
     "no tile that is small enough repeats the pattern: from one tile to the next the dashes are off by {0} drawing units ({1} % of the shortest dash)", "", ""},
    // Shape files.
    {Code::kTruncatedShapeFile, "truncated-shape-file",
     "the file ends within {0}", "", ""},
    {Code::kNotAShapeFile, "not-a-shape-file",
     R"(not a shape file: expected "Vorlanx-86 " at the start)", "", ""},
    {Code::kForeignSignature, "foreign-signature",
     R"(foreign signature: expected "Vorlanx-86 " at the start)", "", "read all the same", true},
    {Code::kUnknownShapeFileKind, "unknown-shape-file-kind",
     R"(unknown kind of shape file: expected "shapes " or "unifont ")", "", ""},
    {Code::kBigfont, "bigfont",
     "big fonts are not supported", R"(use a font of the kind "shapes " or "unifont ")", ""},
    {Code::kUnknownVersion, "unknown-version",
     "unknown version: expected 1.0 or 1.1", "", ""},
    {Code::kUnendedVersion, "unended-version",
     "the version does not end: expected the byte 1A (hexadecimal) within {0} bytes", "", ""},
    {Code::kShapeWithoutProgram, "shape-without-program",
     "{0} has no program after its name", "", ""},
    {Code::kDuplicateShape, "duplicate-shape",
     "{0} is defined twice", "", ""},
    {Code::kFontInfoSize, "font-information-size",
     "the font information (shape 0) must have {0} to {1} bytes after its name", "", ""},
    {Code::kMissingTrailer, "missing-trailer",
     R"(missing "EOF" after the last shape)", "", "read all the same", true},
    {Code::kExtraBytes, "extra-bytes",
     "{0} bytes after the end are not read", "", ""},
    {Code::kMalformedShape, "malformed-shape",
     "{0} cannot be drawn: its program is malformed or cut short", "", ""},
    {Code::kTooManySaves, "too-many-saves",
     "{0} cannot be drawn: it saves more than three positions", "", ""},
    {Code::kMissingSave, "missing-save",
     "{0} cannot be drawn: it returns to a position that it has not saved", "", ""},
    {Code::kRecursiveShape, "recursive-shape",
     "{0} cannot be drawn: it draws itself as a subshape", "", ""},
    {Code::kMissingSubshape, "missing-subshape",
     "{0} cannot be drawn: one of its subshapes is missing", "", ""},
    {Code::kUndrawnShape, "undrawn-shape",
     "{0} cannot be drawn: not enough memory", "", ""},
    {Code::kFontWithoutInfo, "font-without-information",
     "the font has no font information (shape 0)", "no text can be written in it", ""},
    {Code::kShapesLikeFont, "shapes-like-font",
     "the shapes are numbered as letters, but there is no font information (shape 0)", "no text can be written in them", ""},
    {Code::kDuplicateShapeName, "duplicate-shape-name",
     "shape {0} has the same name", "linetypes find that one", ""},
    {Code::kLowerCaseShapeName, "lower-case-shape-name",
     "no linetype can find a name with lower-case letters", "rename the shape", ""},
    {Code::kFontCoverage, "font-coverage",
     "has {0} of 95 characters of ASCII, {1} of 96 of Latin-1{2}", "", ""},
    // Drawings: the document.
    {Code::kInvalidJson, "invalid-json",
     "expected JSON, found an error at {0}", "", "{part} is skipped"},
    {Code::kInvalidValue, "invalid-value",
     "expected {0}, found {1}", "", "{part} is skipped"},
    {Code::kMissingValue, "missing-value",
     "expected {0}, found nothing", "", "{part} is skipped"},
    {Code::kUnknownKey, "unknown-key",
     "unknown key", "", "{part} is skipped"},
    {Code::kKeyOfOtherType, "key-of-other-type",
     "{0} of type {1} has no such key", "", "{part} is skipped"},
    {Code::kDuplicateKey, "duplicate-key",
     "the key is given twice", "", "{part} is skipped"},
    {Code::kConflictingKey, "conflicting-key",
     "this key cannot be given beside {0}", "", "{part} is skipped"},
    {Code::kLoopOfEdges, "loop-of-edges",
     "a loop of a multi-polygon has no edges", "", "{part} is skipped"},
    // Drawings: DXF files.
    {Code::kNoSection, "no-section",
     "expected the start of a section, found {0}", "", ""},
    {Code::kInvalidGroupCode, "invalid-group-code",
     "expected a group code, found {0}", "", ""},
    {Code::kInvalidGroupValue, "invalid-group-value",
     "expected a number in group {1} of {0}, found {2}", "", "read as if it were missing"},
    {Code::kTruncatedPair, "truncated-pair",
     "the file ends within a pair of group code and value", "", ""},
    {Code::kMissingEndMark, "missing-end-mark",
     "missing EOF at the end of the file", "", "read to its last line"},
    {Code::kMissingSectionEnd, "missing-section-end",
     "a section begins before ENDSEC", "", "the section before ends here"},
    {Code::kMissingLayer, "missing-layer",
     "the drawing has no layer {0}", "", "it is added"},
    {Code::kDuplicateEntry, "duplicate-entry",
     "the {0} {1} is defined twice", "", "the first one is used"},
    {Code::kUnnamedBlock, "unnamed-block",
     "the block has no name", "", ""},
    {Code::kZeroExtrusion, "zero-extrusion",
     "the extrusion direction of {0} is zero", "", "read as upright"},
    {Code::kZeroScale, "zero-scale",
     "the scale of {0} is zero", "", "read as 1"},
    {Code::kTiltedPlane, "tilted-plane",
     "{0} lies in a tilted plane", "", "its coordinates are read as those of the drawing"},
    {Code::kInsertWithoutBlock, "insert-without-block",
     "{0} names no block", "", ""},
    {Code::kEntityWithoutPoints, "entity-without-points",
     "{0} has no points", "", ""},
    {Code::kInvalidBoundary, "invalid-boundary",
     "the boundary of {0} cannot be read", "", ""},
    // Drawings: what is not drawn, or not as it should be.
    {Code::kNoUnit, "no-unit",
     "the drawing has no unit", "its lengths are read as metres: {0}", ""},
    {Code::kNotInDrawOrder, "not-in-draw-order",
     "{entities} {is} not drawn: missing in the draw order of the block", "", ""},
    {Code::kUnsupportedClass, "unsupported-class",
     "{entities} of the type {0} {is} not drawn", "", ""},
    {Code::kDrawnIfFaithful, "drawn-if-faithful",
     "{entities} of the type {0} {is} not drawn", "--faithful draws what the drawing shows of such", ""},
    {Code::kWidthNotDrawn, "width",
     "{entities} (polyline) {is} drawn without a width", "--faithful draws the area", ""},
    {Code::kOtherDashes, "other-dashes",
     "the dashes of {entities} are drawn without {0}", "--faithful draws them", ""},
    {Code::kDrawnAs, "drawn-as",
     "{entities} of the type {0} {is} drawn as {1}", "", ""},
    {Code::kInsertNotDrawn, "insert",
     "{entities} (insert) {is} not drawn", "--expand draws what is inserted", ""},
    {Code::kRecursiveInsert, "recursive-insert",
     "{entities} (insert) {is} not drawn: in the inserted block itself, or more than {0} blocks deep", "", ""},
    {Code::kMissingBlock, "missing-block",
     "{entities} (insert) {is} not drawn: the drawing has no block {0}", "", ""},
    {Code::kTooManyEntities, "too-many-entities",
     "the block comes to more than {0} entities with what is inserted", "", ""},
    {Code::kHiddenEntity, "hidden-entity",
     "{entities} {is} drawn that the drawing does not show", "--visible-only leaves out what is hidden, off or frozen", ""},
    {Code::kBasePoint, "base-point",
     "the base point of the block is {0}, and 0,0 its place on the map", "--from-base-point makes it that point", ""},
    {Code::kDrawnWhite, "drawn-white",
     "{entities} {is} drawn white (colour 7)", "--color-7 names another colour", ""},
    {Code::kIgnoredLayer, "ignored-layer",
     "{entities} on the ignored layer {0} {is} not drawn", "", ""},
    {Code::kInvalidSpline, "invalid-spline",
     "{entities} (spline) {is} not drawn: the data make no curve", "", ""},
    {Code::kHatchWithoutBoundary, "hatch-without-boundary",
     "{entities} (hatch) {is} not drawn: no boundary", "", ""},
    {Code::kHatchWithoutPattern, "hatch-without-pattern",
     "{entities} (hatch) {is} not drawn: not solid, and no pattern", "", ""},
    {Code::kInvalidHatch, "invalid-hatch",
     "{entities} (hatch) {is} not drawn: the lines cannot be worked out", "", ""},
    {Code::kEmptyHatch, "empty-hatch",
     "{entities} (hatch) {is} not drawn: no line of the pattern lies inside the boundary", "", ""},
    {Code::kDenseHatch, "dense-hatch",
     "{entities} (hatch) {has} more than {0} lines", "a conversion may reach the limit of time or memory", ""},
    {Code::kMissingLinetype, "missing-linetype",
     "{entities} {is} drawn without dashes: the drawing has no linetype {0}", "", ""},
    {Code::kTextStyleNotInDrawing, "text-style-not-in-drawing",
     "{entities} (text) {is} written without a font: the drawing has no text style {0}", "", ""},
    {Code::kDashStyleMissing, "dash-style-missing",
     "{entities} {is} drawn without the {0} of linetype {1}: the drawing has no text style {2}", "", ""},
    {Code::kDashStyleWithoutFile, "dash-style-without-file",
     "{entities} {is} drawn without the {0} of linetype {1}: text style {2} has no shape file", "", ""},
    {Code::kDashFileMissing, "dash-file-missing",
     "{entities} {is} drawn without the {0} of linetype {1}: shape file {2} not found {3}", "", ""},
    {Code::kDashFileInvalid, "dash-file-invalid",
     "{entities} {is} drawn without the {0} of linetype {1}: shape file {2} cannot be read: {3}", "", ""},
    {Code::kDashShapeMissing, "dash-shape-missing",
     "{entities} {is} drawn without {0} of {1}, which is missing", "", ""},
    {Code::kDashShapeInvalid, "dash-shape-invalid",
     "{entities} {is} drawn without {0} of {1}: {2}", "", ""},
    {Code::kBlockOutOfPlace, "block-out-of-place",
     "drawn up to {0} of its size out of place{1}", "--faithful draws it", ""},
    {Code::kLostParts, "lost-parts",
     "{0} of {1} parts not drawn{2}", "--faithful draws all", ""},
    {Code::kColorByBlock, "color-by-block",
     "colours by block are drawn black", "no insert gives the block a colour", ""},
    {Code::kOnlyByName, "only-by-name",
     "{0} is converted only by --name", "", ""},
    // Styles of map programs.
    {Code::kStyleRenamed, "style-renamed",
     "the library has the name already; this style is named {0}", "", ""},
    {Code::kStyleUnderlining, "style-underlining",
     "lines under and over texts are not part of the style", "", ""},
    {Code::kStyleTurningText, "style-turning-text",
     "the style keeps a text at the default of the parameter that turns it", "", ""},
    {Code::kStyleTurningParts, "style-turning-parts",
     "the style keeps the angle at the default of its parameter", "", "", true},
    {Code::kStyleAreaText, "style-area-text",
     "texts that repeat over an area are left out", "", ""},
    {Code::kStyleAreaFill, "style-area-fill",
     "filled shapes that repeat over an area are left out", "", ""},
    {Code::kStyleUnrepeated, "style-unrepeated",
     "what does not repeat is left out", "", ""},
    {Code::kStyleTooManyMarks, "style-too-many-marks",
     "the style has only the first {0} dots and marks of a repeat", "", ""},
    {Code::kStyleUprightMarks, "style-upright-marks",
     "marks that stay upright turn with the line in the style", "", ""},
    {Code::kStyleFixedText, "style-fixed-text",
     "texts that come from attributes keep their defaults in the style", "", ""},
    {Code::kStyleNoCell, "style-no-cell",
     "no picture of at most {0} pixels repeats it; it is not part of the style",
     "--allow-approximate takes the one that comes nearest", ""},
    {Code::kStyleLongRepeat, "style-long-repeat",
     "its parts repeat together in no picture of at most {0} pixels; it is not part of the style",
     "--scale makes it smaller", ""},
    {Code::kStyleTooLarge, "style-too-large",
     "larger than a picture of {0} pixels; it is not part of the style", "--scale makes it smaller", ""},
    {Code::kStyleTooDense, "style-too-dense",
     "more strokes than a picture can show; it is not part of the style", "--scale makes it larger", ""},
    {Code::kStyleNoInk, "style-no-ink",
     "draws nothing; it is not part of the style", "", ""},
    {Code::kStyleApproximate, "style-approximate",
     "repeats in the style with an error of {0} pixels", "", ""},
    {Code::kNoBarePicture, "no-bare-picture",
     "there is no bare picture of it: {0}", "", ""},});
// clang-format on

constexpr bool RowsStandInTheOrderOfTheCodes() {
    for (std::size_t i = 0; i < kRows.size(); ++i) {
        if (static_cast<std::size_t>(kRows[i].code) != i) {
            return false;
        }
    }
    return true;
}
static_assert(RowsStandInTheOrderOfTheCodes());

const Row& RowOf(Code code) {
    return kRows[static_cast<std::size_t>(code)];
}

// What stands for a name in braces.
std::string Filled(std::string_view name, const std::vector<std::string>& subjects, std::size_t count) {
    if (name == "entities") {
        return std::to_string(count) + (count == 1 ? " entity" : " entities");
    }
    if (name == "is") {
        return count == 1 ? "is" : "are";
    }
    if (name == "part") {
        return subjects.empty() ? std::string() : subjects.back();
    }
    if (name == "has") {
        return count == 1 ? "has" : "have";
    }
    const auto subject = static_cast<std::size_t>(name.front() - '0');
    return subject < subjects.size() ? subjects[subject] : std::string();
}

// `filled` gives what stands for a name in braces.
template <class Filling>
std::string FillWith(std::string_view sentence, const Filling& filled) {
    std::string text;
    for (std::size_t open = 0; (open = sentence.find('{')) != std::string_view::npos;) {
        const std::size_t close = sentence.find('}', open);
        text += sentence.substr(0, open);
        text += filled(sentence.substr(open + 1, close - open - 1));
        sentence.remove_prefix(close + 1);
    }
    return text.append(sentence);
}

std::string Fill(std::string_view sentence, const std::vector<std::string>& subjects, std::size_t count) {
    return FillWith(sentence, [&](std::string_view name) { return Filled(name, subjects, count); });
}

// What stands for a name where nothing is known of the subjects.
std::string FilledOfAny(std::string_view name) {
    return name == "entities" ? "entities" : name == "is" ? "are" : name == "has" ? "have" : "…";
}

std::string_view OutcomeOf(const Diagnostic& diagnostic) {
    switch (diagnostic.outcome) {
    case Outcome::kNone:
        return RowOf(diagnostic.code).strictly;
    case Outcome::kSkipped:
        return "skipped";
    case Outcome::kRepaired:
        break;
    }
    return RowOf(diagnostic.code).repaired;
}

std::string PlaceText(const Place& place) {
    std::string text = place.file;
    for (const std::uint64_t number : {place.line, place.line > 0 ? place.column : 0}) {
        text += number > 0 ? ":" + std::to_string(number) : "";
    }
    return text;
}

std::string WithSuffix(const Diagnostic& diagnostic, std::string_view suffix) {
    const Place& place = diagnostic.place;
    std::string text = PlaceText(place) + ": " + std::string(NameOf(diagnostic.severity)) + ": ";
    if (place.byte) {
        text += "byte " + std::to_string(*place.byte) + ": ";
    }
    if (!place.path.empty()) {
        text += place.path + ": ";
    }
    text += SentenceOf(diagnostic);
    if (!place.item.empty()) {
        text += " (" + place.item + ")";
    }
    return ShownText(text.append(suffix));
}

} // namespace

std::string_view NameOf(Code code) {
    return RowOf(code).name;
}

std::optional<Code> CodeNamed(std::string_view name) {
    const auto row =
        std::find_if(kRows.begin(), kRows.end(), [&](const Row& each) { return each.name == name; });
    return row == kRows.end() ? std::nullopt : std::optional(row->code);
}

std::vector<Code> AllCodes() {
    std::vector<Code> codes;
    codes.reserve(kRows.size());
    for (const Row& row : kRows) {
        codes.push_back(row.code);
    }
    return codes;
}

std::string_view NameOf(Severity severity) {
    switch (severity) {
    case Severity::kError:
        return "error";
    case Severity::kWarning:
        return "warning";
    case Severity::kNote:
        break;
    }
    return "note";
}

std::string SentenceOf(const Diagnostic& diagnostic) {
    const Row& row = RowOf(diagnostic.code);
    std::string text = Fill(row.sentence, diagnostic.subjects, diagnostic.count);
    if (const std::string_view outcome = OutcomeOf(diagnostic); !outcome.empty()) {
        text += "; " + Fill(outcome, diagnostic.subjects, diagnostic.count);
    }
    if (diagnostic.count > 1 && !CountsEntities(diagnostic.code)) {
        const std::size_t more = diagnostic.count - 1;
        text += "; the same in " + std::to_string(more) + " more place" + (more == 1 ? "" : "s");
    }
    if (diagnostic.morePlaces > 0) {
        text += "; likewise in " + std::to_string(diagnostic.morePlaces) + " more place" +
                (diagnostic.morePlaces == 1 ? "" : "s");
    }
    return text;
}

std::string SentenceOf(Code code, const std::vector<std::string>& subjects) {
    return Fill(RowOf(code).sentence, subjects, 1);
}

std::string SummaryOf(Code code) {
    return FillWith(RowOf(code).sentence, FilledOfAny);
}

std::string HelpOf(Code code) {
    const Row& row = RowOf(code);
    std::string text = SummaryOf(code);
    if (!row.strictly.empty()) {
        text += "; " + FillWith(row.strictly, FilledOfAny);
    }
    if (!row.repaired.empty() && row.repaired != row.strictly) {
        text += ". With --tolerant: " + FillWith(row.repaired, FilledOfAny);
    }
    return text;
}

std::string MessageOf(const Diagnostic& diagnostic) {
    return WithSuffix(diagnostic, "");
}

std::string MessageWithCode(const Diagnostic& diagnostic) {
    return WithSuffix(diagnostic, " [" + std::string(NameOf(diagnostic.code)) + "]");
}

bool HasOneCause(Code code) {
    return RowOf(code).hasOneCause;
}

bool CountsEntities(Code code) {
    return RowOf(code).sentence.find("{entities}") != std::string_view::npos;
}

std::string UnitHelp(std::optional<bool> isMetric) {
    if (!isMetric) {
        return "--units names another";
    }
    return *isMetric ? "--units mm is likely, as it was drawn with metric linetypes"
                     : "--units inch is likely, as it was drawn with linetypes in inches";
}

} // namespace diagnostics
