// The bytes of a DXF file, of which only those that are read just now are held.
#include "exchange/DxfPieces.h"

#include <algorithm>

namespace exchange {

// To a new piece, where there is room behind them. A piece grows with what it must hold at once, so that long
// lines are not moved again and again.
void DxfPieces::Move() {
    size_ = std::max(pieceSize_, 2 * rest_.size());
    std::unique_ptr<char[]> piece(new char[size_]);
    std::copy(rest_.begin(), rest_.end(), piece.get());
    rest_ = {piece.get(), rest_.size()};
    pieces_.push_back(std::move(piece));
}

bool DxfPieces::Extend() {
    if (source_ == nullptr) {
        return false;
    }
    if (pieces_.empty() || rest_.data() + rest_.size() == pieces_.back().get() + size_) {
        Move();
    }
    char* const piece = pieces_.back().get();
    const std::size_t used = static_cast<std::size_t>(rest_.data() - piece) + rest_.size();
    const std::size_t count = source_->Read(piece + used, size_ - used);
    rest_ = {rest_.data(), rest_.size() + count};
    return count > 0;
}

bool DxfPieces::Require(std::size_t count) {
    while (rest_.size() < count) {
        if (!Extend()) {
            return false;
        }
    }
    return true;
}

void DxfPieces::Release() {
    if (pieces_.size() > 1) {
        pieces_.erase(pieces_.begin(), pieces_.end() - 1);
    }
}

} // namespace exchange
