// Findings as a SARIF log: how files are called in it.
#include "documents/SarifDocument.h"

#include <gtest/gtest.h>

namespace {

TEST(SarifDocument, PathsAreReferencesOfUris) {
    EXPECT_EQ(documents::UriOf("walls.pat"), "walls.pat");
    EXPECT_EQ(documents::UriOf("a b/100%.pat"), "a%20b/100%25.pat");
    EXPECT_EQ(documents::UriOf("/home/w\xc3\xa4nde.pat"), "file:///home/w%C3%A4nde.pat");
    EXPECT_EQ(documents::UriOf("C:\\maps\\walls.pat"), "file:///C:/maps/walls.pat");
    // No scheme, and no host.
    EXPECT_EQ(documents::UriOf("x:y.pat"), "x%3Ay.pat");
}

TEST(SarifDocument, NothingFoundIsALogWithoutResultsAndRules) {
    const std::string text = documents::SarifText({}, "1.0");
    EXPECT_NE(text.find("\"rules\": []"), std::string::npos) << text;
    EXPECT_NE(text.find("\"results\": []"), std::string::npos) << text;
}

} // namespace
