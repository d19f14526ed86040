// Symbols built by hand for the tests of pictures.
#pragma once

#include "TylModel/TylModel.h"

#include <memory>
#include <string>
#include <vector>

namespace preview_test {

using SymbolPointer = std::unique_ptr<TylModel::SymbolDefinition>;

/// Adds a path to a definition and returns it for more settings.
TylModel::Path& AddPath(TylModel::SimpleSymbolDefinition& definition, const std::wstring& geometry,
                        const std::wstring& lineColor = L"ff000000");

/// Adds a text of height 1 with its left end of the base line at the origin.
TylModel::Text& AddText(TylModel::SimpleSymbolDefinition& definition, const std::wstring& content);

void AddParameter(TylModel::SimpleSymbolDefinition& definition, const std::wstring& identifier,
                  const std::wstring& displayName, const std::wstring& defaultValue,
                  TylModel::Parameter::DataType type);

/// LINECOLOR and LINEWEIGHT as linetypes have them.
void AddLineParameters(TylModel::SimpleSymbolDefinition& definition);

void SetLineUsage(TylModel::SimpleSymbolDefinition& definition, const std::wstring& repeat);
void SetAreaUsage(TylModel::SimpleSymbolDefinition& definition, const std::wstring& angle,
                  const std::wstring& repeatX, const std::wstring& repeatY);
void SetPointUsage(TylModel::SimpleSymbolDefinition& definition);

std::unique_ptr<TylModel::SimpleSymbolDefinition> NewSymbol(const std::wstring& name);

/// A compound of the definitions, in order.
SymbolPointer Compound(const std::wstring& name,
                       std::vector<std::unique_ptr<TylModel::SimpleSymbolDefinition>> members);

/// A point symbol of black lines of one path.
SymbolPointer PointSymbol(const std::wstring& name, const std::wstring& geometry);

/// One symbol of each kind that converters make: dashes with a text, dashes with a shape that keeps its
/// angle, bricks, a tree with parameters.
std::vector<SymbolPointer> TypicalSymbols();

/// Symbols of which a test knows where their pictures have ink.
std::vector<SymbolPointer> MeasuredSymbols();

/// Symbols from damaged or hostile files.
std::vector<SymbolPointer> HostileSymbols();

} // namespace preview_test
