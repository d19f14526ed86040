// Makes chosen calls of the drawing database fail, and counts all calls that can fail.
#pragma once

#include "OxDb/ErrorStatus.h"
#include "OxDb/Export.h"

#include <array>
#include <cstdint>
#include <vector>

namespace drawing {

/// The calls that can fail: each is a place where a damaged drawing, or a library in trouble, shows.
enum class Operation : std::uint8_t {
    kGetBlockTable,
    kGetLayerTable,
    kGetTextStyleTable,
    kBlockTableGetAt,
    kLayerTableGetAt,
    kTextStyleTableGetAt,
    kBlockTableNewIterator,
    kBlockTableIteratorGetRecord,
    kBlockGetName,
    kLayerGetName,
    kLinetypeGetName,
    kTextStyleGetName,
    kOpenEntity,
    kOpenObject,
    kClose, // reports the failure, but closes
    kGetSortentsTable,
    kGetFullDrawOrder,
    kBlockNewIterator,
    kBlockIteratorGetEntity,
    kNewBlockReferenceIterator,
    kGetBlockReference,
    kEntityLayer, // a null buffer, whatever the status
    kGetStartParam,
    kGetEndParam,
    kGetPointAtParam,
    kGetStartPoint,
    kGetEndPoint,
    kGetLineSegAt,
    kGetArcSegAt,
    kGetFitData,
    kGetNurbsData,
    kEvaluateHatch,
    kGetHatchLineDataAt,
    kGetEdgeLoopAt,
    kGetPolylineLoopAt,
    kGetMPolygonLoopAt,
    kTextStyleFileName,
    kTextStyleBigFontFileName,
    kTextStyleFont,
    kTextAt,
    kFindFile,
};

constexpr std::size_t kOperationCount = static_cast<std::size_t>(Operation::kFindFile) + 1;

/// The name of an operation, for messages of tests: "getBlockTable".
OXDB_API const char* OperationName(Operation operation);

/// One per database (and one per host services, unless shared). Calls are counted from 1.
class OXDB_API FailurePlan {
public:
    /// The `call`th call of `operation` from now fails with `status`; with call 0, every one. A status of eOk
    /// makes the call succeed and hand out nothing: null, an empty list.
    void Fail(Operation operation, std::uint64_t call, Oxsys::ErrorStatus status);
    /// The `call`th call from now fails, whichever operation it is.
    void FailAnyCall(std::uint64_t call, Oxsys::ErrorStatus status);
    /// Nothing fails any more; counting starts anew.
    void Clear();

    /// How many calls there were since the last Clear, of one operation and of all.
    std::uint64_t Calls(Operation operation) const { return calls_[static_cast<std::size_t>(operation)]; }
    std::uint64_t AllCalls() const { return allCalls_; }
    /// How many calls were made to fail since the last Clear.
    std::uint64_t FailedCalls() const { return failedCalls_; }

    /// For the model: counts a call; true when it is to fail, with `status` set.
    bool CallFails(Operation operation, Oxsys::ErrorStatus& status) {
        ++calls_[static_cast<std::size_t>(operation)];
        ++allCalls_;
        return !failures_.empty() && IsPlanned(operation, status);
    }

private:
    struct Failure {
        Operation operation;
        bool anyOperation;
        std::uint64_t call; // as counted since Clear; 0: every call
        Oxsys::ErrorStatus status;
    };

    bool IsPlanned(Operation operation, Oxsys::ErrorStatus& status);

    std::vector<Failure> failures_;
    std::array<std::uint64_t, kOperationCount> calls_{};
    std::uint64_t allCalls_ = 0;
    std::uint64_t failedCalls_ = 0;
};

} // namespace drawing
