// What the test's process holds, on the X server and in its heap, to see that work leaves nothing behind.
#pragma once

#include <gtest/gtest.h>
#include <map>
#include <string>

struct Footprint {
    std::map<std::string, unsigned> resources; ///< on the X server, by kind: "GC", "PIXMAP", "CURSOR", ...
    unsigned long pixmapBytes = 0;
    long heap = 0; ///< bytes in use; only differences mean something
};

/// The footprint now, when the server has done everything asked of it. The toolkit has to be up.
Footprint footprint();

/// Bytes by which `heap` may grow although nothing is left behind: caches below that settle late. Without
/// the sanitizer the C library's sum is taken, which includes small blocks that it keeps back, at most seven
/// of each of 64 sizes up to a kilobyte; with it, what was freed is never counted.
#ifdef __SANITIZE_ADDRESS__
constexpr long HEAP_SLACK = 16 * 1024;
#else
constexpr long HEAP_SLACK = 256 * 1024;
#endif

/// Success when both hold the same on the server, and the heap has grown by the slack at most. The work in
/// between has to be repeated often enough that a leak of a few bytes each time is far above that.
testing::AssertionResult holdsNoMore(const Footprint& after, const Footprint& before);
