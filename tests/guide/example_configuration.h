#pragma once

namespace corvane {

/// Imports the worked example into the registry; CORVANE_WORKED_EXAMPLE names its file.
void ImportWorkedExample();

}  // namespace corvane
