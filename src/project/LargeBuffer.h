#pragma once

#include <cstddef>
#include <cstdint>

#include <sys/mman.h>

namespace vorlane {

// Asks the system to back the whole 2 MB pages inside a large buffer with huge pages, before
// the buffer is first written. A project file, its reader's copy and the engine files run to
// megabytes, and filling them page by page in 4 kB steps costs more than the work on them.
// Only advice: where the system declines, nothing changes.
inline void adviseLargeBuffer(const void *data, std::size_t size)
{
#ifdef MADV_HUGEPAGE
    constexpr std::uintptr_t HugePage = std::uintptr_t{2} << 20;
    const auto start = reinterpret_cast<std::uintptr_t>(data);
    const std::uintptr_t begin = (start + HugePage - 1) & ~(HugePage - 1);
    const std::uintptr_t end = (start + size) & ~(HugePage - 1);
    if (end > begin)
        ::madvise(reinterpret_cast<void *>(begin), end - begin, MADV_HUGEPAGE);
#else
    (void)data;
    (void)size;
#endif
}

} // namespace vorlane
