#include "styleconv/EmptyFile.h"

#include "styleconv/Messages.h"

namespace styleconv {

std::string EmptyFileText(const InputFile& input, const EmptyFileWords& words) {
    std::string text = "the file has no ";
    text += words.contents;
    text += ": ";
    if (StartsWithByteOrderMark(input.Bytes())) {
        text +=
            "a UTF-8 byte-order mark stands before its first character and hides a header there; save the "
            "file without it";
    } else {
        text += words.absence;
    }
    return text;
}

void SayFileIsEmpty(const InputFile& input, const EmptyFileWords& words) {
    if (StartsWithByteOrderMark(input.Bytes())) {
        SayAtLine(input.Name(), 1, EmptyFileText(input, words));
    } else {
        Say(input.Name(), EmptyFileText(input, words));
    }
}

} // namespace styleconv
