// The drawing that the tests of block conversion share.
#include "tests/block/BlockTest.h"

#include <stdexcept>

namespace blocktest {

BlockTest::BlockTest()
    : block(*database.AddBlock(L"B")), buffers_(drawing::LiveBufferCount()),
      iterators_(drawing::LiveIteratorCount()), modelObjects_(TylModel::CountLiveObjects()) {
    database.SetInsunits(OxDb::kUnitsMillimeters);
    database.AddLayer(L"0", Index(7), static_cast<OxDb::LineWeight>(25));
}

BlockTest::~BlockTest() {
    EXPECT_TRUE(database.IsEverythingClosed());
    EXPECT_EQ(database.Counts().wronglyClosed, 0U);
    EXPECT_EQ(drawing::LiveBufferCount(), buffers_);
    EXPECT_EQ(drawing::LiveIteratorCount(), iterators_);
    EXPECT_EQ(TylModel::CountLiveObjects(), modelObjects_);
}

Symbol BlockTest::Convert(const std::wstring& name) {
    BlockConverter converter(&database);
    auto* const symbol = dynamic_cast<TylModel::SimpleSymbolDefinition*>(converter.Convert(name));
    if (symbol == nullptr) {
        throw std::runtime_error("the block was not converted");
    }
    return Symbol(symbol);
}

std::vector<std::wstring> BlockTest::Geometries() {
    const Symbol symbol = Convert();
    const std::int32_t count = symbol->GetGraphics().GetCount();
    std::vector<std::wstring> geometries;
    geometries.reserve(static_cast<std::size_t>(count));
    for (std::int32_t i = 0; i < count; ++i) {
        geometries.push_back(PathAt(symbol, i).GetGeometry());
    }
    return geometries;
}

std::wstring BlockTest::Geometry() {
    const std::vector<std::wstring> geometries = Geometries();
    if (geometries.size() != 1) {
        throw std::runtime_error("expected one path, found " + std::to_string(geometries.size()));
    }
    return geometries[0];
}

namespace {

template <class Element>
const Element& GraphicAt(const Symbol& symbol, std::int32_t index) {
    if (index >= symbol->GetGraphics().GetCount()) {
        throw std::runtime_error("there is no such graphic");
    }
    return dynamic_cast<const Element&>(*symbol->GetGraphics().GetAt(index));
}

} // namespace

const TylModel::Path& PathAt(const Symbol& symbol, std::int32_t index) {
    return GraphicAt<TylModel::Path>(symbol, index);
}

const TylModel::Text& TextAt(const Symbol& symbol, std::int32_t index) {
    return GraphicAt<TylModel::Text>(symbol, index);
}

const TylModel::Parameter& ParameterAt(const Symbol& symbol, std::int32_t index) {
    if (index >= symbol->GetParameterDefinition().GetCount()) {
        throw std::runtime_error("there is no such parameter");
    }
    return *symbol->GetParameterDefinition().GetAt(index);
}

std::vector<std::wstring> Identifiers(const Symbol& symbol) {
    const std::int32_t count = symbol->GetParameterDefinition().GetCount();
    std::vector<std::wstring> identifiers;
    identifiers.reserve(static_cast<std::size_t>(count));
    for (std::int32_t i = 0; i < count; ++i) {
        identifiers.push_back(ParameterAt(symbol, i).GetIdentifier());
    }
    return identifiers;
}

} // namespace blocktest
