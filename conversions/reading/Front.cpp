#include "conversions/reading/Front.h"

namespace conversions {

FoundFile Front::FindShapeFile(const std::wstring& /*name*/) {
    return {};
}

std::string Front::PlacesSearched(const std::wstring& /*name*/) {
    return "anywhere";
}

void Front::BeginStage(std::string_view /*stage*/, std::size_t /*items*/) {}

void Front::AtItem(std::string_view /*item*/) {}

} // namespace conversions
