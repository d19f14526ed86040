// Linetype files to line symbols: the three entry points.
#include "StyleConversion/linetype/LineConverter.h"

#include "StyleConversion/linetype/CLinVisitor.h"
#include "StyleConversion/linetype/CLineConverterDep.h"
#include "StyleConversion/linetype/LinParser.h"
#include "StyleConversion/platform/Files.h"

namespace LineConverter {

std::vector<TylModel::SymbolDefinition*>* Convert(const wchar_t* fileName, IGetFontInfo* fontInfo,
                                                  IGetFile* files, double scale) {
    if (fileName == nullptr) {
        return nullptr;
    }
    try {
        LinParser parser(fontInfo, files);
        parser.Clear();
        if (parser.Parse(fileName) != kSuccess) {
            parser.Clear();
            return nullptr;
        }
        CLinVisitor visitor(scale);
        return parser.Accept(visitor) == kSuccess ? visitor.TakeResults() : nullptr;
    } catch (...) {
        return nullptr;
    }
}

std::vector<TylModel::SymbolDefinition*>* Convert(const wchar_t* fileName,
                                                  OxDbHostApplicationServices* const services, double scale) {
    if (fileName == nullptr) {
        return nullptr;
    }
    try {
        const platform::PathParts parts = platform::SplitPath(fileName);
        const std::wstring searchDirectory = parts.drive + parts.directory;
        CLineConverterDep dependencies(services, searchDirectory.c_str());
        return Convert(fileName, &dependencies, &dependencies, scale);
    } catch (...) {
        return nullptr;
    }
}

std::vector<TylModel::SymbolDefinition*>* Convert(const wchar_t* fileName, double scale) {
    return Convert(fileName, nullptr, nullptr, scale);
}

} // namespace LineConverter
