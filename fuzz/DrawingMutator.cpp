// Changes values of drawing documents, where changing bytes would mostly make documents that are refused.
#include "fuzz/Fuzzing.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <nlohmann/json.hpp>
#include <random>
#include <string>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace {

using Json = nlohmann::json;
using Random = std::minstd_rand;

constexpr double kNumbers[] = {0,
                               -0.0,
                               1,
                               -1,
                               0.5,
                               2,
                               3,
                               1e-9,
                               1e-12,
                               1e9,
                               1e12,
                               1e154,
                               1e200,
                               1e308,
                               -1e308,
                               5e-324,
                               90,
                               3.141592653589793,
                               6.283185307179586,
                               255,
                               256,
                               32767,
                               65536,
                               2147483648.0,
                               0.1,
                               10,
                               7,
                               -2,
                               -3};

constexpr const char* kTexts[] = {"",
                                  "B",
                                  "D",
                                  "M",
                                  "0",
                                  "STANDARD",
                                  "ByLayer",
                                  "ByBlock",
                                  "Continuous",
                                  "#ff0080",
                                  "line",
                                  "arc",
                                  "circle",
                                  "point",
                                  "ellipse",
                                  "polyline",
                                  "spline",
                                  "hatch",
                                  "mpolygon",
                                  "text",
                                  "mtext",
                                  "insert",
                                  "other",
                                  "a",
                                  "b",
                                  "%%c%%u",
                                  "it's",
                                  "marks.shx",
                                  "\\fArial|b1|i1;A\\P{B}",
                                  "attributeDefinition"};

template <class Item, std::size_t kCount>
const Item& Any(const Item (&items)[kCount], Random& random) {
    return items[random() % kCount];
}

// A leaf of a document that was flattened.
void ChangeLeaf(Json& leaf, Random& random) {
    if (leaf.is_number()) {
        const double value = leaf.get<double>();
        const double choices[] = {Any(kNumbers, random), -value, value * 2, value / 2, value + 1};
        const double chosen = random() % 2 == 0 ? choices[0] : Any(choices, random);
        // Keys that take whole numbers refuse others.
        const bool whole = chosen == std::floor(chosen) && std::fabs(chosen) < 1e15;
        leaf = whole ? Json(static_cast<std::int64_t>(chosen)) : Json(chosen);
    } else if (leaf.is_string()) {
        leaf = Any(kTexts, random);
    } else if (leaf.is_boolean()) {
        leaf = !leaf.get<bool>();
    }
}

Json* AnyArray(Json& value, Random& random) {
    Json* chosen = value.is_array() && !value.empty() ? &value : nullptr;
    if (value.is_structured()) {
        for (Json& part : value) {
            Json* const candidate = AnyArray(part, random);
            if (candidate != nullptr && (chosen == nullptr || random() % 2 == 0)) {
                chosen = candidate;
            }
        }
    }
    return chosen;
}

void ChangeArray(Json& document, Random& random) {
    Json* const array = AnyArray(document, random);
    if (array == nullptr) {
        return;
    }
    const auto item = static_cast<std::ptrdiff_t>(random() % array->size());
    if (random() % 3 == 0) {
        array->erase(array->begin() + item);
    } else {
        const Json copy = (*array)[static_cast<std::size_t>(item)];
        array->insert(array->begin() + item, copy);
    }
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned int seed) {
    Random random(seed);
    Json document = Json::parse(fuzzing::Text(data, size), nullptr, false);
    if (!document.is_object() || random() % 8 == 0) {
        return LLVMFuzzerMutate(data, size, maxSize);
    }
    if (random() % 4 == 0) {
        ChangeArray(document, random);
    } else {
        Json leaves = document.flatten();
        for (std::size_t changes = 1 + random() % 3; changes > 0 && !leaves.empty(); --changes) {
            ChangeLeaf(*std::next(leaves.begin(), static_cast<std::ptrdiff_t>(random() % leaves.size())),
                       random);
        }
        document = leaves.unflatten();
    }
    const std::string text = document.dump(-1, ' ', false, Json::error_handler_t::replace);
    if (text.size() > maxSize) {
        return LLVMFuzzerMutate(data, size, maxSize);
    }
    std::copy(text.begin(), text.end(), data);
    return text.size();
}
