#pragma once

#include "core/RunTimeError.h"

namespace marlo::test {

/// The number of the failure that `body` ends with; `None` when it comes to its end.
template <class Body>
ErrorNumber FailureOf(Body body) {
    try {
        body();
    } catch (const RunTimeError& failure) {
        return failure.Number();
    }
    return ErrorNumber::None;
}

}  // namespace marlo::test
