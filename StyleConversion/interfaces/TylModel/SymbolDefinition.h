// Symbol definitions: simple ones, and compounds of simple ones.
#pragma once

#include "TylModel/GraphicElement.h"
#include "TylModel/OwnerCollection.h"
#include "TylModel/Parameter.h"
#include "TylModel/RootObject.h"
#include "TylModel/Usage.h"

#include <memory>
#include <string>

namespace TylModel {

class CompoundSymbolDefinition;
class SimpleSymbolDefinition;

/// Is shown each kind of symbol definition by SymbolDefinition::AcceptVisitor.
class TYLMODEL_API ISymbolDefinitionVisitor {
public:
    virtual ~ISymbolDefinitionVisitor();
    /// `definition` is borrowed.
    virtual void VisitSimpleSymbolDefinition(SimpleSymbolDefinition& definition) = 0;
    virtual void VisitCompoundSymbolDefinition(CompoundSymbolDefinition& definition) = 0;
};

/// A named symbol.
class TYLMODEL_API SymbolDefinition : public TylRootObject {
public:
    ~SymbolDefinition() override;
    /// Calls the visitor's operation for this definition's class, once; a definition of this class itself,
    /// which has nothing but its texts, calls none.
    virtual void AcceptVisitor(ISymbolDefinitionVisitor& visitor);

    /// The symbol's name, as plain text: that of the block, the linetype or the pattern.
    void SetName(const std::wstring& name) { name_ = name; }
    const std::wstring& GetName() const { return name_; }
    /// What the symbol is, as plain text; may be empty.
    void SetDescription(const std::wstring& description) { description_ = description; }
    const std::wstring& GetDescription() const { return description_; }

private:
    std::wstring name_;
    std::wstring description_;
};

/// Graphics in drawing order, the parameters that they refer to, and at most one usage of each kind.
class TYLMODEL_API SimpleSymbolDefinition : public SymbolDefinition {
public:
    ~SimpleSymbolDefinition() override;
    void AcceptVisitor(ISymbolDefinitionVisitor& visitor) override;

    /// What is drawn, in drawing order. The elements stay the definition's.
    TylOwnerCollection<GraphicElement>& GetGraphics() { return graphics_; }
    const TylOwnerCollection<GraphicElement>& GetGraphics() const { return graphics_; }
    /// What the expressions of the graphics and usages may refer to. The parameters stay the definition's.
    TylOwnerCollection<Parameter>& GetParameterDefinition() { return parameters_; }
    const TylOwnerCollection<Parameter>& GetParameterDefinition() const { return parameters_; }

    /// Each takes ownership of the usage and deletes the one that stood there before.
    void AdoptPointUsage(PointUsage* usage) { pointUsage_.reset(usage); }
    void AdoptLineUsage(LineUsage* usage) { lineUsage_.reset(usage); }
    void AdoptAreaUsage(AreaUsage* usage) { areaUsage_.reset(usage); }
    /// The adopted usage, which stays the definition's, or null.
    PointUsage* GetPointUsage() const { return pointUsage_.get(); }
    LineUsage* GetLineUsage() const { return lineUsage_.get(); }
    AreaUsage* GetAreaUsage() const { return areaUsage_.get(); }

private:
    TylOwnerCollection<GraphicElement> graphics_;
    TylOwnerCollection<Parameter> parameters_;
    std::unique_ptr<PointUsage> pointUsage_;
    std::unique_ptr<LineUsage> lineUsage_;
    std::unique_ptr<AreaUsage> areaUsage_;
};

/// An entry of a compound symbol.
class TYLMODEL_API SimpleSymbol : public TylRootObject {
public:
    ~SimpleSymbol() override;

    /// Takes ownership of the definition and deletes the one that stood there before.
    void AdoptSymbolDefinition(SimpleSymbolDefinition* definition) { definition_.reset(definition); }
    /// The adopted definition, which stays the entry's, or null.
    SimpleSymbolDefinition* GetSymbolDefinition() const { return definition_.get(); }

private:
    std::unique_ptr<SimpleSymbolDefinition> definition_;
};

/// An ordered group of simple symbols that are drawn one over the other.
class TYLMODEL_API CompoundSymbolDefinition : public SymbolDefinition {
public:
    ~CompoundSymbolDefinition() override;
    void AcceptVisitor(ISymbolDefinitionVisitor& visitor) override;

    /// The entries, in drawing order. They stay the definition's.
    TylOwnerCollection<SimpleSymbol>& GetSymbols() { return symbols_; }
    const TylOwnerCollection<SimpleSymbol>& GetSymbols() const { return symbols_; }

private:
    TylOwnerCollection<SimpleSymbol> symbols_;
};

} // namespace TylModel
