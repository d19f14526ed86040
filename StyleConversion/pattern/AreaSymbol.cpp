// Families sorted into groups, each group a symbol.
#include "StyleConversion/pattern/AreaSymbol.h"

#include "StyleConversion/encoding/TrimmedNumber.h"
#include "StyleConversion/interfaces/HostNames.h"
#include "StyleConversion/pattern/LinePath.h"
#include "StyleConversion/pattern/PatternLimits.h"
#include "StyleConversion/platform/CodePage.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace pattern {
namespace {

using TylModel::SimpleSymbolDefinition;
using TylModel::SymbolDefinition;

// What the parameters stand for, in the numbers of the symbol model.
constexpr int kAngleType = 5;
constexpr int kFillColorType = 6;

const std::wstring kHatchColor = L"HATCHCOLOR";
const std::wstring kHatchColorReference = L"%HATCHCOLOR%";
const std::wstring kHatchColorDefault = L"0xff000000";
const std::wstring kHatchColorDisplayName = L"&Hatch Color";
const std::wstring kHatchColorDescription = L"Color for the hatch style";
const std::wstring kHatchAngle = L"HATCHANGLE";
const std::wstring kHatchAngleReference = L"%HATCHANGLE%";
const std::wstring kHatchAngleDefault = L"0.0";
// The angle's display name speaks of a colour: hosts know it by this text.
const std::wstring kHatchAngleDisplayName = L"Hatch &Color";
const std::wstring kHatchAngleDescription = L"Rotation angle for the hatch style";

Tile TileOf(const PatternLine& line) {
    return {line.rotatedTile ? 0.0 : line.angle, std::fabs(line.repeatX), std::fabs(line.repeatY)};
}

bool IsSameTile(const Tile& first, const Tile& second) {
    return std::fabs(first.angle - second.angle) < kSameTileTolerance &&
           std::fabs(first.width - second.width) < kSameTileTolerance &&
           std::fabs(first.height - second.height) < kSameTileTolerance;
}

// Less than, with NaN above all numbers: an order of all doubles, as sorting needs it.
bool Precedes(double first, double second) {
    return first < second || (std::isnan(second) && !std::isnan(first));
}

bool IsDrawnBefore(const PatternLine& first, const PatternLine& second) {
    if (first.rotatedTile != second.rotatedTile) {
        return first.rotatedTile;
    }
    const Tile firstTile = TileOf(first);
    const Tile secondTile = TileOf(second);
    for (const auto key : {&Tile::angle, &Tile::width, &Tile::height}) {
        if (Precedes(firstTile.*key, secondTile.*key)) {
            return true;
        }
        if (Precedes(secondTile.*key, firstTile.*key)) {
            return false;
        }
    }
    return false;
}

void AdoptParameter(SimpleSymbolDefinition& definition, const std::wstring& identifier,
                    const std::wstring& defaultValue, const std::wstring& displayName,
                    const std::wstring& description, int type) {
    auto parameter = std::make_unique<TylModel::Parameter>();
    parameter->SetIdentifier(identifier);
    parameter->SetDefaultValue(defaultValue);
    parameter->SetDisplayName(displayName);
    parameter->SetDescription(description);
    parameter->SetDataType(static_cast<TylModel::Parameter::DataType>(type));
    host::Adopt(definition.GetParameterDefinition(), std::move(parameter));
}

void AdoptUsage(SimpleSymbolDefinition& definition, const Tile& tile) {
    auto usage = std::make_unique<TylModel::AreaUsage>();
    std::wstring angle = kHatchAngleReference;
    if (tile.angle != 0) {
        angle += L'+' + encoding::Double2TrimmedString(tile.angle);
    }
    usage->SetAngle(angle);
    usage->SetRepeatX(encoding::Double2TrimmedString(tile.width));
    usage->SetRepeatY(encoding::Double2TrimmedString(tile.height));
    definition.AdoptAreaUsage(usage.release());
}

// The symbol of one group, without its path.
std::unique_ptr<SimpleSymbolDefinition> MakeDefinition(const std::wstring& name, const Tile& tile) {
    auto definition = std::make_unique<SimpleSymbolDefinition>();
    definition->SetName(name);
    AdoptUsage(*definition, tile);
    AdoptParameter(*definition, kHatchColor, kHatchColorDefault, kHatchColorDisplayName,
                   kHatchColorDescription, kFillColorType);
    AdoptParameter(*definition, kHatchAngle, kHatchAngleDefault, kHatchAngleDisplayName,
                   kHatchAngleDescription, kAngleType);
    return definition;
}

void AdoptPath(SimpleSymbolDefinition& definition, const std::wstring& geometry) {
    auto path = std::make_unique<TylModel::Path>();
    path->SetGeometry(geometry);
    path->SetLineColor(kHatchColorReference);
    host::Adopt(definition.GetGraphics(), std::move(path));
}

std::unique_ptr<SymbolDefinition>
MakeCompound(const std::wstring& name, std::vector<std::unique_ptr<SimpleSymbolDefinition>>& definitions) {
    auto compound = std::make_unique<TylModel::CompoundSymbolDefinition>();
    compound->SetName(name);
    for (std::unique_ptr<SimpleSymbolDefinition>& definition : definitions) {
        auto symbol = std::make_unique<TylModel::SimpleSymbol>();
        symbol->AdoptSymbolDefinition(definition.release());
        host::Adopt(compound->GetSymbols(), std::move(symbol));
    }
    return compound;
}

} // namespace

std::unique_ptr<SymbolDefinition> AreaSymbolBuilder::Build(const std::string& name,
                                                           std::vector<PatternLine>& lines) {
    std::stable_sort(lines.begin(), lines.end(), IsDrawnBefore);
    platform::AnsiToWide(name, name_);
    definitions_.clear();
    path_.clear();
    previous_ = {};
    for (PatternLine& line : lines) {
        Take(line);
    }
    if (definitions_.empty()) {
        return nullptr;
    }
    AdoptPath(*definitions_.back(), path_); // though it may be empty
    if (definitions_.size() == 1) {
        return std::move(definitions_.front());
    }
    return MakeCompound(name_, definitions_);
}

void AreaSymbolBuilder::Take(PatternLine& line) {
    if (line.rowCount < 0) {
        return;
    }
    const Tile tile = TileOf(line);
    if (IsSameTile(tile, previous_)) {
        JoinGroup(line);
    } else {
        StartGroup(line, tile);
    }
    previous_ = tile;
}

// The blank is written even behind an empty path, but not for a family that draws nothing.
// Required: R36
void AreaSymbolBuilder::JoinGroup(PatternLine& line) {
    path_ += L' ';
    const std::size_t start = path_.size();
    AppendLinePath(path_, line);
    if (path_.size() == start) {
        path_.pop_back();
    }
}

void AreaSymbolBuilder::StartGroup(PatternLine& line, const Tile& tile) {
    if (!definitions_.empty() && !path_.empty()) {
        AdoptPath(*definitions_.back(), path_);
    }
    definitions_.push_back(MakeDefinition(name_, tile));
    path_.clear();
    AppendLinePath(path_, line);
}

std::unique_ptr<SymbolDefinition> BuildAreaSymbol(const std::string& name, std::vector<PatternLine>& lines) {
    return AreaSymbolBuilder().Build(name, lines);
}

} // namespace pattern
