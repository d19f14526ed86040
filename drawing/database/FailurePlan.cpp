// Planned failures of single calls.
#include "drawing/database/FailurePlan.h"

namespace drawing {

const char* OperationName(Operation operation) {
    static constexpr std::array<const char*, kOperationCount> kNames = {
        "getBlockTable",
        "getLayerTable",
        "getTextStyleTable",
        "blockTableGetAt",
        "layerTableGetAt",
        "textStyleTableGetAt",
        "blockTableNewIterator",
        "blockTableIteratorGetRecord",
        "blockGetName",
        "layerGetName",
        "linetypeGetName",
        "textStyleGetName",
        "openEntity",
        "openObject",
        "close",
        "getSortentsTable",
        "getFullDrawOrder",
        "blockNewIterator",
        "blockIteratorGetEntity",
        "newBlockReferenceIterator",
        "getBlockReference",
        "entityLayer",
        "getStartParam",
        "getEndParam",
        "getPointAtParam",
        "getStartPoint",
        "getEndPoint",
        "getLineSegAt",
        "getArcSegAt",
        "getFitData",
        "getNurbsData",
        "evaluateHatch",
        "getHatchLineDataAt",
        "getEdgeLoopAt",
        "getPolylineLoopAt",
        "getMPolygonLoopAt",
        "textStyleFileName",
        "textStyleBigFontFileName",
        "textStyleFont",
        "textAt",
        "findFile",
    };
    return kNames[static_cast<std::size_t>(operation)];
}

void FailurePlan::Fail(Operation operation, std::uint64_t call, Oxsys::ErrorStatus status) {
    const std::uint64_t counted = call == 0 ? 0 : Calls(operation) + call;
    failures_.push_back({operation, false, counted, status});
}

void FailurePlan::FailAnyCall(std::uint64_t call, Oxsys::ErrorStatus status) {
    const std::uint64_t counted = call == 0 ? 0 : allCalls_ + call;
    failures_.push_back({Operation::kClose, true, counted, status});
}

void FailurePlan::Clear() {
    failures_.clear();
    calls_.fill(0);
    allCalls_ = 0;
    failedCalls_ = 0;
}

bool FailurePlan::IsPlanned(Operation operation, Oxsys::ErrorStatus& status) {
    for (const Failure& failure : failures_) {
        if (!failure.anyOperation && failure.operation != operation) {
            continue;
        }
        const std::uint64_t call = failure.anyOperation ? allCalls_ : Calls(operation);
        if (failure.call == 0 || failure.call == call) {
            status = failure.status;
            ++failedCalls_;
            return true;
        }
    }
    return false;
}

} // namespace drawing
