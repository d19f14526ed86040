// The visitor entries of the symbol definitions.
#include "TylModel/SymbolDefinition.h"

namespace TylModel {

ISymbolDefinitionVisitor::~ISymbolDefinitionVisitor() = default;

SymbolDefinition::~SymbolDefinition() = default;

void SymbolDefinition::AcceptVisitor(ISymbolDefinitionVisitor& /*visitor*/) {}

SimpleSymbolDefinition::~SimpleSymbolDefinition() = default;

void SimpleSymbolDefinition::AcceptVisitor(ISymbolDefinitionVisitor& visitor) {
    visitor.VisitSimpleSymbolDefinition(*this);
}

SimpleSymbol::~SimpleSymbol() = default;

CompoundSymbolDefinition::~CompoundSymbolDefinition() = default;

void CompoundSymbolDefinition::AcceptVisitor(ISymbolDefinitionVisitor& visitor) {
    visitor.VisitCompoundSymbolDefinition(*this);
}

} // namespace TylModel
