// Boundaries and patterns of areas.
#pragma once

#include "documents/DrawingSplines.h"
#include "drawing/entities/Areas.h"

#include <memory>
#include <vector>

namespace documents {

/// [x, y] or [x, y, bulge]...
class VerticesNode : public TuplesNode<drawing::BulgeVertex> {
public:
    VerticesNode() : TuplesNode(2, 3, "a vertex [x, y] or [x, y, bulge]") {}
    bool BeginArray(ReadState& state) override;
    /// Whether any vertex gives a bulge, be it 0.
    bool HasBulges() const { return hasBulges_; }

protected:
    drawing::BulgeVertex Make(const TupleNode& tuple) override;

private:
    bool hasBulges_ = false;
};

/// One edge of a loop; added to a list.
class EdgeNode : public ObjectNode {
public:
    using Edges = std::vector<drawing::HatchEdge>;

    explicit EdgeNode(Edges& edges);

protected:
    bool Finish(ReadState& state) override;

private:
    Edges& edges_;
    PointNode start_;
    PointNode end_;
    PointNode center_;
    NumberNode radius_;
    PointNode majorAxis_;
    NumberNode radiusRatio_;
    NumberNode startAngle_;
    NumberNode endAngle_;
    BooleanNode clockwise_;
    SplineKeys spline_;
};

/// One loop; added to a list.
class LoopNode : public ObjectNode {
public:
    explicit LoopNode(std::vector<drawing::HatchLoop>& loops);
    void Reset() override;

protected:
    bool Finish(ReadState& state) override;

private:
    std::vector<drawing::HatchLoop>& loops_;
    EdgeNode::Edges edges_;
    VerticesNode vertices_;
    ListNode<EdgeNode> edgesNode_{edges_};
};

/// The list of loops.
class LoopsNode : public ListNode<LoopNode> {
public:
    LoopsNode() : ListNode(loops_) {}
    void Reset() override { loops_.clear(); }
    std::vector<drawing::HatchLoop>& Values() { return loops_; }

private:
    std::vector<drawing::HatchLoop> loops_;
};

/// One family line of a pattern; added to a list.
class FamilyNode : public ObjectNode {
public:
    explicit FamilyNode(std::vector<drawing::HatchFamily>& families);

protected:
    bool Finish(ReadState& state) override;

private:
    std::vector<drawing::HatchFamily>& families_;
    NumberNode angle_;
    TupleNode base_{2, 2, "a point [x, y]"};
    TupleNode offset_{2, 2, "a vector [x, y]"};
    NumbersNode dashes_;
};

/// The family lines of a pattern.
class PatternNode : public ListNode<FamilyNode> {
public:
    PatternNode() : ListNode(families_) {}
    void Reset() override { families_.clear(); }
    std::vector<drawing::HatchFamily>& Values() { return families_; }

private:
    std::vector<drawing::HatchFamily> families_;
};

/// [x0, y0, x1, y1]...
class HatchLinesNode : public TuplesNode<drawing::HatchLine> {
public:
    HatchLinesNode() : TuplesNode(4, 4, "a line [x0, y0, x1, y1]") {}

protected:
    drawing::HatchLine Make(const TupleNode& tuple) override;
};

} // namespace documents
