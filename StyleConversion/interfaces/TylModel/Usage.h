// How a symbol is used: at a point, along a line, over an area.
#pragma once

#include "TylModel/RootObject.h"

#include <string>

namespace TylModel {

/// How a symbol is placed at a point.
class TYLMODEL_API PointUsage : public TylRootObject {
public:
    ~PointUsage() override;
    /// Degrees, counter-clockwise.
    void SetAngle(const std::wstring& angle) { angle_ = angle; }
    const std::wstring& GetAngle() const { return angle_; }

private:
    std::wstring angle_;
};

/// How a symbol is repeated along a line. Lengths are in the units of the symbol's geometry.
class TYLMODEL_API LineUsage : public TylRootObject {
public:
    ~LineUsage() override;
    /// Degrees, counter-clockwise, measured as the angle control says.
    void SetAngle(const std::wstring& angle) { angle_ = angle; }
    const std::wstring& GetAngle() const { return angle_; }
    /// "'FromAngle'" for an angle that does not turn with the line; empty for one relative to the line.
    void SetAngleControl(const std::wstring& control) { angleControl_ = control; }
    const std::wstring& GetAngleControl() const { return angleControl_; }
    /// The distance from one repetition to the next.
    void SetRepeat(const std::wstring& repeat) { repeat_ = repeat; }
    const std::wstring& GetRepeat() const { return repeat_; }
    /// The distance from the line's start to the first repetition.
    void SetStartOffset(const std::wstring& offset) { startOffset_ = offset; }
    const std::wstring& GetStartOffset() const { return startOffset_; }

private:
    std::wstring angle_;
    std::wstring angleControl_;
    std::wstring repeat_;
    std::wstring startOffset_;
};

/// How a symbol tiles an area. Lengths are in the units of the symbol's geometry.
class TYLMODEL_API AreaUsage : public TylRootObject {
public:
    ~AreaUsage() override;
    /// Degrees, counter-clockwise, by which the tiling is turned.
    void SetAngle(const std::wstring& angle) { angle_ = angle; }
    const std::wstring& GetAngle() const { return angle_; }
    /// The tile's size along its own x axis.
    void SetRepeatX(const std::wstring& repeat) { repeatX_ = repeat; }
    const std::wstring& GetRepeatX() const { return repeatX_; }
    /// The tile's size along its own y axis.
    void SetRepeatY(const std::wstring& repeat) { repeatY_ = repeat; }
    const std::wstring& GetRepeatY() const { return repeatY_; }

private:
    std::wstring angle_;
    std::wstring repeatX_;
    std::wstring repeatY_;
};

} // namespace TylModel
