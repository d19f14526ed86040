// Resolved symbols for the tests of styles.
#pragma once

#include "preview/ResolvedSymbol.h"
#include "tests/preview/SampleSymbols.h"

namespace styles_test {

inline preview::ResolvedSymbol LineSymbol(const std::wstring& geometry, const std::wstring& repeat) {
    const auto symbol = preview_test::NewSymbol(L"LINE");
    preview_test::AddPath(*symbol, geometry);
    preview_test::SetLineUsage(*symbol, repeat);
    return preview::Resolve(*symbol);
}

inline preview::ResolvedSymbol AreaSymbol(const std::wstring& geometry, const std::wstring& repeatX,
                                          const std::wstring& repeatY, const std::wstring& angle = L"0") {
    const auto symbol = preview_test::NewSymbol(L"AREA");
    preview_test::AddPath(*symbol, geometry);
    preview_test::SetAreaUsage(*symbol, angle, repeatX, repeatY);
    return preview::Resolve(*symbol);
}

inline preview::ResolvedSymbol PointSymbol(const std::wstring& geometry) {
    const auto symbol = preview_test::PointSymbol(L"POINT", geometry);
    return preview::Resolve(*symbol);
}

} // namespace styles_test
