#pragma once

#include "tests/driver/probe_protocol.h"
#include "tests/driver/window.h"

namespace driver {

/// Asks a question about `window` inside its own process and gives the record back with the answer.
/// Throws Failure when no answer comes.
[[nodiscard]] ProbeRequest Probe(const Window& window, const ProbeRequest& question);

}  // namespace driver
