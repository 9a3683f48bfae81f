#include "zeli.h"

namespace {

constexpr ZelLibraryVersion kVersion = {
    5, 3, 85, 502, {'v', '8', '\0', '\0'},
    "libzeliv8-5.3.dylib", "5.3 Update 2 build 85.21", "Feb 18 2008",
};

}  // namespace

const ZelLibraryVersion* zeliGetLibVersion(void) { return &kVersion; }
