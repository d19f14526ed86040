// The parts that line symbols are put together from.
#pragma once

#include "StyleConversion/interfaces/HostNames.h"

#include <memory>
#include <string>

namespace LineConverter {

/// Each appends one parameter to the definition: what "%LINECOLOR%", "%LINEWEIGHT%" and "%TEXTCOLOR%" refer
/// to.
void AddLineColorParameter(TylModel::SimpleSymbolDefinition& definition);
void AddLineWeightParameter(TylModel::SimpleSymbolDefinition& definition);
void AddTextColorParameter(TylModel::SimpleSymbolDefinition& definition);

/// Appends a path in the line's colour and weight.
void AddLinePath(TylModel::SimpleSymbolDefinition& definition, const std::wstring& geometry);

/// Appends a member named `name` to the compound and returns its definition, which the compound owns.
TylModel::SimpleSymbolDefinition& AddMember(TylModel::CompoundSymbolDefinition& compound,
                                            const std::wstring& name);

/// Gives the definition a new line usage and returns it; the definition owns it.
TylModel::LineUsage& AddLineUsage(TylModel::SimpleSymbolDefinition& definition);

/// Lets a usage hold an angle against the drawing instead of the line (degrees), `startOffset` along the
/// line.
void FixAngle(TylModel::LineUsage& usage, double angle, double startOffset);

} // namespace LineConverter
