#pragma once

namespace corvane {

/// The CS profile whose settings the profile editor shows, as its index in the profile. There is one for the
/// whole program, owned by whoever opens profile editors.
struct ShownCsProfile {
    int index = 0;
};

}  // namespace corvane
