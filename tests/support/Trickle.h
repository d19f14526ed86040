// A DXF file that comes piece by piece.
#pragma once

#include "exchange/DxfPieces.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

/// Gives the bytes of a file, so many at a time.
class Trickle : public exchange::ByteSource {
public:
    Trickle(std::string_view bytes, std::size_t most) : bytes_(bytes), most_(most) {}

    std::size_t Read(char* bytes, std::size_t most) override {
        const std::size_t count = std::min({most, most_, bytes_.size() - at_});
        std::copy_n(bytes_.data() + at_, count, bytes);
        at_ += count;
        return count;
    }
    void Rewind() override {
        at_ = 0;
        ++begun;
    }

    int begun = 0; // how often the file was read from its start

private:
    std::string_view bytes_;
    std::size_t most_;
    std::size_t at_ = 0;
};
