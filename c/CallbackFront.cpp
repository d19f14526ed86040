#include "c/CallbackFront.h"

#include "StyleConversion/platform/Utf8.h"

#include <utility>

namespace c_interface {

styleconversion_answer CallbackFront::Ask(const std::string& name) const {
    styleconversion_answer answer;
    if (find_ != nullptr) {
        find_(context_, name.c_str(), &answer);
    }
    return answer;
}

conversions::FoundFile CallbackFront::FindShapeFile(const std::wstring& name) {
    styleconversion_answer answer = Ask(platform::WideToValidUtf8(name));
    conversions::FoundFile file;
    file.isFound = answer.isGiven;
    file.bytes = std::move(answer.bytes);
    return file;
}

std::string CallbackFront::PlacesSearched(const std::wstring& /*name*/) {
    return "among the files given";
}

} // namespace c_interface
