#pragma once

namespace corvane::test {

/// Imports the worked example into the registry; CORVANE_WORKED_EXAMPLE names its file.
void ImportWorkedExample();

}  // namespace corvane::test
