#pragma once

/// Lies in a library of its own, which is taken away to show what becomes of the one that needs it.
extern "C" int NeededFunction();
