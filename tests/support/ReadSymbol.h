// A symbol as tests read it, whichever symbol model it is an object of.
#pragma once

#include "TylModel/TylModel.h"

#include <optional>
#include <string>
#include <vector>

struct ReadPath {
    std::wstring geometry, lineColor, fillColor, lineWeight, lineWeightScalable;
};

struct ReadText {
    std::wstring content, fontName, height, angle, x, y, horizontal, vertical, color, bold, italic,
        underlined, overlined;
};

/// One of the two is set.
struct ReadGraphic {
    std::optional<ReadPath> path;
    std::optional<ReadText> text;
};

struct ReadParameter {
    std::wstring identifier, displayName, description, defaultValue;
    int dataType = -1;
};

struct ReadPointUsage {
    std::wstring angle;
};

struct ReadLineUsage {
    std::wstring angle, angleControl, repeat, startOffset;
};

struct ReadAreaUsage {
    std::wstring angle, repeatX, repeatY;
};

/// A compound symbol has members and nothing else beside its name and description.
struct ReadSymbol {
    bool isCompound = false;
    std::wstring name, description;
    std::vector<ReadGraphic> graphics;
    std::vector<ReadParameter> parameters;
    std::optional<ReadPointUsage> point;
    std::optional<ReadLineUsage> line;
    std::optional<ReadAreaUsage> area;
    std::vector<ReadSymbol> members;
};

/// Each model that the tests run on implements these two.
ReadSymbol Read(TylModel::SymbolDefinition& symbol);
/// How many objects of the model there are; -1 where nobody counts.
long CountModelObjects();
