// Families sorted into groups, each group a symbol.
#include "StyleConversion/pattern/AreaSymbol.h"

#include "StyleConversion/encoding/TrimmedNumber.h"
#include "StyleConversion/pattern/PatternLimits.h"
#include "StyleConversion/platform/CodePage.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace pattern {
namespace {

using TylModel::SimpleSymbolDefinition;
using TylModel::SymbolDefinition;

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

// How a tile lies: its angle in degrees and its size, without signs.
struct Tile {
    double angle = 0.0;
    double width = 0.0;
    double height = 0.0;
};

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

void SeparateFromPrevious(std::wstring& path) {
    if (!path.empty() && path.back() != L' ') {
        path += L' ';
    }
}

void AppendPair(std::wstring& path, double x, double y) {
    encoding::AppendTrimmed(path, x);
    path += L',';
    encoding::AppendTrimmed(path, y);
}

void AppendHorizontal(std::wstring& path, double x, double y, double length) {
    path += L"M ";
    AppendPair(path, x, y);
    path += L" h ";
    encoding::AppendTrimmed(path, length);
}

// Turns points by the family's angle about its origin.
class Rotation {
public:
    explicit Rotation(const PatternLine& line)
        : originX_(line.originX), originY_(line.originY), cos_(std::cos(line.angle * kRadiansPerDegree)),
          sin_(std::sin(line.angle * kRadiansPerDegree)) {}

    void AppendTurned(std::wstring& path, double x, double y) const {
        AppendPair(path, (x - originX_) * cos_ - (y - originY_) * sin_ + originX_,
                   (x - originX_) * sin_ + (y - originY_) * cos_ + originY_);
    }

private:
    double originX_;
    double originY_;
    double cos_;
    double sin_;
};

void AppendTurnedDash(std::wstring& path, const Rotation& rotation, double x, double y, double length) {
    path += L"M ";
    rotation.AppendTurned(path, x, y);
    path += L" L ";
    rotation.AppendTurned(path, x + length, y);
}

// From the drawing's frame into the family's own, in which its lines run along the x axis.
void TurnOriginIntoOwnFrame(PatternLine& line) {
    const double radians = -line.angle * kRadiansPerDegree;
    const double c = std::cos(radians);
    const double s = std::sin(radians);
    const double x = line.originX;
    const double y = line.originY;
    line.originX = x * c - y * s;
    line.originY = x * s + y * c;
}

// Calls draw(x, y, length) for every dash and dot of one row.
template <class Draw>
void WalkDashes(const PatternLine& line, double x, double y, Draw draw) {
    for (const double dash : line.dashes) {
        if (dash >= 0) {
            draw(x, y, dash);
        }
        x += std::fabs(dash);
    }
}

void AppendRow(std::wstring& path, const PatternLine& line, const Rotation& rotation, double x, double y) {
    if (line.dashes.empty()) {
        AppendHorizontal(path, x, y, line.repeatX);
    } else {
        WalkDashes(line, x, y, [&](double startX, double startY, double length) {
            SeparateFromPrevious(path);
            if (line.rotatedTile) {
                AppendTurnedDash(path, rotation, startX, startY, length);
            } else {
                AppendHorizontal(path, startX, startY, length);
            }
        });
    }
}

void AdoptParameter(SimpleSymbolDefinition& definition, const std::wstring& identifier,
                    const std::wstring& defaultValue, const std::wstring& displayName,
                    const std::wstring& description, TylModel::Parameter::DataType type) {
    auto parameter = std::make_unique<TylModel::Parameter>();
    parameter->SetIdentifier(identifier);
    parameter->SetDefaultValue(defaultValue);
    parameter->SetDisplayName(displayName);
    parameter->SetDescription(description);
    parameter->SetDataType(type);
    definition.GetParameterDefinition().Adopt(parameter.release());
}

void AdoptUsage(SimpleSymbolDefinition& definition, const Tile& tile) {
    auto usage = std::make_unique<TylModel::AreaUsage>();
    std::wstring angle = kHatchAngleReference;
    if (tile.angle != 0) {
        angle += L'+';
        encoding::AppendTrimmed(angle, tile.angle);
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
                   kHatchColorDescription, TylModel::Parameter::kFillColor);
    AdoptParameter(*definition, kHatchAngle, kHatchAngleDefault, kHatchAngleDisplayName,
                   kHatchAngleDescription, TylModel::Parameter::kAngle);
    return definition;
}

void AdoptPath(SimpleSymbolDefinition& definition, const std::wstring& geometry) {
    auto path = std::make_unique<TylModel::Path>();
    path->SetGeometry(geometry);
    path->SetLineColor(kHatchColorReference);
    definition.GetGraphics().Adopt(path.release());
}

using Definitions = std::vector<std::unique_ptr<SimpleSymbolDefinition>>;

// Collects the families of a pattern, in their sorted order, into one definition for each group.
class Grouping {
public:
    explicit Grouping(const std::wstring& name) : name_(name) {}

    void Take(PatternLine& line) {
        if (line.rowCount < 0) {
            return;
        }
        const Tile tile = TileOf(line);
        if (IsSameTile(tile, previous_)) {
            const std::wstring more = BuildLinePath(line);
            if (!more.empty()) {
                path_ += L' ';
                path_ += more;
            }
        } else {
            if (!path_.empty()) {
                FlushPath();
            }
            definitions_.push_back(MakeDefinition(name_, tile));
            path_ = BuildLinePath(line);
        }
        previous_ = tile;
    }

    // The last group has a path even when nothing is drawn by it.
    Definitions Finish() {
        FlushPath();
        return std::move(definitions_);
    }

private:
    // A family whose angle and tile are all but 0 joins the group before the first: its path has no symbol
    // to go to and is dropped, which is wanted.
    void FlushPath() {
        if (!definitions_.empty()) {
            AdoptPath(*definitions_.back(), path_);
        }
    }

    const std::wstring& name_;
    Definitions definitions_;
    std::wstring path_;
    Tile previous_;
};

std::unique_ptr<SymbolDefinition> MakeCompound(const std::wstring& name, Definitions definitions) {
    auto compound = std::make_unique<TylModel::CompoundSymbolDefinition>();
    compound->SetName(name);
    for (std::unique_ptr<SimpleSymbolDefinition>& definition : definitions) {
        auto symbol = std::make_unique<TylModel::SimpleSymbol>();
        symbol->AdoptSymbolDefinition(definition.release());
        compound->GetSymbols().Adopt(symbol.release());
    }
    return compound;
}

} // namespace

std::unique_ptr<SymbolDefinition> BuildAreaSymbol(const std::string& name, std::vector<PatternLine>& lines) {
    if (lines.empty()) {
        return nullptr;
    }
    std::stable_sort(lines.begin(), lines.end(), IsDrawnBefore);
    const std::wstring wideName = platform::AnsiToWide(name);
    Grouping grouping(wideName);
    for (PatternLine& line : lines) {
        grouping.Take(line);
    }
    Definitions definitions = grouping.Finish();
    if (definitions.empty()) {
        return nullptr;
    }
    if (definitions.size() == 1) {
        return std::move(definitions.front());
    }
    return MakeCompound(wideName, std::move(definitions));
}

std::wstring BuildLinePath(PatternLine& line) {
    if (!line.rotatedTile) {
        TurnOriginIntoOwnFrame(line);
    }
    const Rotation rotation(line);
    std::wstring path;
    for (std::int32_t row = 0; row < line.rowCount; ++row) {
        SeparateFromPrevious(path);
        AppendRow(path, line, rotation, row * line.offset + line.originX, row * line.spacing + line.originY);
    }
    return path;
}

} // namespace pattern
