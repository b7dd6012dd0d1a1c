// libFuzzer entry point: every input goes through the project file round trip.
#include "ProjectRoundTrip.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static vorlane::fuzz::ProjectRoundTrip roundTrip;
    const std::string problem =
        roundTrip.run(std::string_view(reinterpret_cast<const char *>(data), size));
    if (!problem.empty()) {
        std::fprintf(stderr, "project round trip failed: %s\n", problem.c_str());
        std::abort();
    }
    return 0;
}
