// The symbol model keeps strings as they are given, and everything has one owner.
#include "TylModel/TylModel.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace {

using namespace TylModel;

// Every setter with the getter beside it.
template <class Class>
struct Property {
    void (Class::*set)(const std::wstring&);
    const std::wstring& (Class::*get)() const;
};

// Each property starts empty, keeps just what it is given, and none is another's.
template <class Class>
void ExpectKept(Class& object, const std::vector<Property<Class>>& properties) {
    for (std::size_t i = 0; i < properties.size(); ++i) {
        EXPECT_EQ((object.*properties[i].get)(), L"") << i;
    }
    for (std::size_t i = 0; i < properties.size(); ++i) {
        (object.*properties[i].set)(L" 'x' %A%" + std::to_wstring(i));
    }
    for (std::size_t i = 0; i < properties.size(); ++i) {
        EXPECT_EQ((object.*properties[i].get)(), L" 'x' %A%" + std::to_wstring(i)) << i;
    }
}

TEST(Model, APathKeepsItsProperties) {
    Path path;
    ExpectKept<Path>(path, {{&Path::SetGeometry, &Path::GetGeometry},
                            {&Path::SetLineColor, &Path::GetLineColor},
                            {&Path::SetFillColor, &Path::GetFillColor},
                            {&Path::SetLineWeight, &Path::GetLineWeight},
                            {&Path::SetLineWeightScalable, &Path::GetLineWeightScalable}});
}

TEST(Model, ATextKeepsItsProperties) {
    Text text;
    ExpectKept<Text>(text, {{&Text::SetContent, &Text::GetContent},
                            {&Text::SetFontName, &Text::GetFontName},
                            {&Text::SetHeight, &Text::GetHeight},
                            {&Text::SetAngle, &Text::GetAngle},
                            {&Text::SetPositionX, &Text::GetPositionX},
                            {&Text::SetPositionY, &Text::GetPositionY},
                            {&Text::SetHorizontalAlignment, &Text::GetHorizontalAlignment},
                            {&Text::SetVerticalAlignment, &Text::GetVerticalAlignment},
                            {&Text::SetTextColor, &Text::GetTextColor},
                            {&Text::SetBold, &Text::GetBold},
                            {&Text::SetItalic, &Text::GetItalic},
                            {&Text::SetUnderlined, &Text::GetUnderlined},
                            {&Text::SetOverlined, &Text::GetOverlined}});
}

TEST(Model, AParameterKeepsItsPropertiesAndType) {
    Parameter parameter;
    ExpectKept<Parameter>(parameter, {{&Parameter::SetIdentifier, &Parameter::GetIdentifier},
                                      {&Parameter::SetDisplayName, &Parameter::GetDisplayName},
                                      {&Parameter::SetDescription, &Parameter::GetDescription},
                                      {&Parameter::SetDefaultValue, &Parameter::GetDefaultValue}});
    for (const int code : {0, 5, 6, 7, 8, 23}) {
        parameter.SetDataType(static_cast<Parameter::DataType>(code));
        EXPECT_EQ(static_cast<int>(parameter.GetDataType()), code);
    }
}

TEST(Model, UsagesKeepTheirProperties) {
    PointUsage point;
    ExpectKept<PointUsage>(point, {{&PointUsage::SetAngle, &PointUsage::GetAngle}});
    LineUsage line;
    ExpectKept<LineUsage>(line, {{&LineUsage::SetAngle, &LineUsage::GetAngle},
                                 {&LineUsage::SetAngleControl, &LineUsage::GetAngleControl},
                                 {&LineUsage::SetRepeat, &LineUsage::GetRepeat},
                                 {&LineUsage::SetStartOffset, &LineUsage::GetStartOffset}});
    AreaUsage area;
    ExpectKept<AreaUsage>(area, {{&AreaUsage::SetAngle, &AreaUsage::GetAngle},
                                 {&AreaUsage::SetRepeatX, &AreaUsage::GetRepeatX},
                                 {&AreaUsage::SetRepeatY, &AreaUsage::GetRepeatY}});
}

TEST(Model, ADefinitionKeepsNameAndDescription) {
    CompoundSymbolDefinition definition;
    ExpectKept<SymbolDefinition>(definition,
                                 {{&SymbolDefinition::SetName, &SymbolDefinition::GetName},
                                  {&SymbolDefinition::SetDescription, &SymbolDefinition::GetDescription}});
}

TEST(Model, APropertyTakesOneTextAfterAnother) {
    Path path;
    for (const std::wstring text : {L"%LINECOLOR%", L"ff123456", L"ff000000", L"", L"false", L"%LINECOLOR"}) {
        path.SetLineColor(text);
        EXPECT_EQ(path.GetLineColor(), text);
    }
}

TEST(Model, ACollectionKeepsTheOrderOfAdoption) {
    TylOwnerCollection<Parameter> collection;
    EXPECT_EQ(collection.GetCount(), 0);
    std::vector<Parameter*> adopted;
    for (std::int32_t i = 0; i < 5; ++i) {
        adopted.push_back(new Parameter);
        EXPECT_EQ(collection.Adopt(adopted.back()), i);
    }
    EXPECT_EQ(collection.GetCount(), 5);
    for (std::int32_t i = 0; i < 5; ++i) {
        EXPECT_EQ(collection.GetAt(i), adopted[static_cast<std::size_t>(i)]);
    }
}

TEST(Model, ADefinitionHasNoUsageUntilItAdoptsOne) {
    SimpleSymbolDefinition definition;
    EXPECT_EQ(definition.GetPointUsage(), nullptr);
    EXPECT_EQ(definition.GetLineUsage(), nullptr);
    EXPECT_EQ(definition.GetAreaUsage(), nullptr);
    auto* const usage = new LineUsage;
    definition.AdoptLineUsage(usage);
    EXPECT_EQ(definition.GetLineUsage(), usage);
    EXPECT_EQ(definition.GetPointUsage(), nullptr);
    EXPECT_EQ(definition.GetAreaUsage(), nullptr);
}

// A compound with a member that has a path, a text, a parameter and the three usages.
std::unique_ptr<SymbolDefinition> MakeFullSymbol() {
    auto* const definition = new SimpleSymbolDefinition;
    definition->GetGraphics().Adopt(new Path);
    definition->GetGraphics().Adopt(new Text);
    definition->GetParameterDefinition().Adopt(new Parameter);
    definition->AdoptPointUsage(new PointUsage);
    definition->AdoptLineUsage(new LineUsage);
    definition->AdoptAreaUsage(new AreaUsage);
    auto* const member = new SimpleSymbol;
    member->AdoptSymbolDefinition(definition);
    auto compound = std::make_unique<CompoundSymbolDefinition>();
    compound->GetSymbols().Adopt(member);
    return compound;
}

TEST(Model, EverythingGoesWithItsOwner) {
    if (CountLiveObjects() < 0) {
        GTEST_SKIP() << "this build does not count model objects";
    }
    const long before = CountLiveObjects();
    std::unique_ptr<SymbolDefinition> symbol = MakeFullSymbol();
    EXPECT_EQ(CountLiveObjects(), before + 9);
    symbol.reset();
    EXPECT_EQ(CountLiveObjects(), before);
}

TEST(Model, AnAdoptedUsageTakesThePlaceOfTheOneBefore) {
    if (CountLiveObjects() < 0) {
        GTEST_SKIP() << "this build does not count model objects";
    }
    SimpleSymbolDefinition definition;
    const long before = CountLiveObjects();
    definition.AdoptAreaUsage(new AreaUsage);
    definition.AdoptAreaUsage(new AreaUsage);
    EXPECT_EQ(CountLiveObjects(), before + 1);
}

class KindNames : public ISymbolDefinitionVisitor, public IGraphicElementVisitor {
public:
    void VisitPath(Path& /*path*/) override { names += "path "; }
    void VisitText(Text& /*text*/) override { names += "text "; }
    void VisitSimpleSymbolDefinition(SimpleSymbolDefinition& definition) override {
        names += "simple ";
        for (int i = 0; i < definition.GetGraphics().GetCount(); ++i) {
            AcceptVisitor(*definition.GetGraphics().GetAt(i), *this);
        }
    }
    void VisitCompoundSymbolDefinition(CompoundSymbolDefinition& definition) override {
        names += "compound ";
        for (int i = 0; i < definition.GetSymbols().GetCount(); ++i) {
            definition.GetSymbols().GetAt(i)->GetSymbolDefinition()->AcceptVisitor(*this);
        }
    }

    std::string names;
};

TEST(Model, BaseClassesCanBeMadeAndShowNothing) {
    KindNames visitor;
    SymbolDefinition definition;
    definition.SetName(L"Name");
    definition.AcceptVisitor(visitor);
    GraphicElement element;
    AcceptVisitor(element, visitor);
    EXPECT_EQ(visitor.names, "");
    EXPECT_EQ(definition.GetName(), L"Name");
}

TEST(Model, VisitorsAreShownTheKindOfEverything) {
    KindNames visitor;
    MakeFullSymbol()->AcceptVisitor(visitor);
    EXPECT_EQ(visitor.names, "compound simple path text ");
}

} // namespace
