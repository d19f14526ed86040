// Whether a text is XML, as readers that know no document type take it.
#pragma once

#include <string_view>

namespace fuzzing {

/// Whether it is one element, behind a declaration and a document type at most: tags that match, attributes
/// that are quoted and each there once, characters and references that XML allows.
bool IsXml(std::string_view utf8);

} // namespace fuzzing
