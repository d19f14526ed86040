// Names of which no two are alike.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>

namespace styles {

/// Puts a number, from 2 on, behind names that are wanted again: "GAS (2)".
class UniqueNames {
public:
    UniqueNames(std::string_view beforeNumber, std::string_view behindNumber)
        : before_(beforeNumber), behind_(behindNumber) {}

    std::string Of(const std::string& wanted) {
        std::string unique = wanted;
        int& number = lastNumbers_.try_emplace(wanted, 1).first->second;
        while (!names_.insert(unique).second) {
            unique = wanted + before_ + std::to_string(++number) + behind_;
        }
        return unique;
    }

private:
    std::string before_;
    std::string behind_;
    std::set<std::string> names_;
    std::map<std::string, int> lastNumbers_; // behind names that were wanted again
};

} // namespace styles
