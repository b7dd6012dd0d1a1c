#include "model/LargeMemory.h"

#include <cstdint>
#include <cstring>
#include <new>
#include <utility>

#include <sys/mman.h>

// Under AddressSanitizer large memory comes from the ordinary allocator, exactly as large as
// asked, so that the sanitizer sees every byte written beyond a block.
#if defined(__SANITIZE_ADDRESS__)
#define VORLANE_CHECKED_MEMORY 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VORLANE_CHECKED_MEMORY 1
#endif
#endif

namespace vorlane {

namespace {

constexpr std::size_t SmallPage = std::size_t{4} << 10;
constexpr std::size_t HugePage = std::size_t{2} << 20;

constexpr std::size_t roundUp(std::size_t size, std::size_t unit)
{
    return (size + unit - 1) & ~(unit - 1);
}

// Whole small pages. A block of a huge page or more starts on a huge page boundary, so that
// every whole huge page inside it can be one; the part after the last whole huge page is in
// small pages, which costs a few faults but never clears memory that is not used.
constexpr std::size_t blockSize(std::size_t size)
{
#ifdef VORLANE_CHECKED_MEMORY
    return size == 0 ? 1 : size;
#endif
    return roundUp(size == 0 ? 1 : size, SmallPage);
}

void *mapAnonymous(std::size_t size)
{
    void *data = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (data == MAP_FAILED)
        throw std::bad_alloc();
    return data;
}

} // namespace

void *allocateLarge(std::size_t size)
{
    const std::size_t mapped = blockSize(size);
#ifdef VORLANE_CHECKED_MEMORY
    void *checked = ::operator new(mapped, std::nothrow);
    if (!checked)
        throw std::bad_alloc();
    return std::memset(checked, 0, mapped);
#endif
    if (mapped < HugePage)
        return mapAnonymous(mapped);

    // Huge pages must start on a 2 MB boundary: map one huge page more than needed and give
    // back what lies before the boundary and after the block.
    auto *raw = static_cast<char *>(mapAnonymous(mapped + HugePage));
    const auto start = reinterpret_cast<std::uintptr_t>(raw);
    char *data = raw + (roundUp(start, HugePage) - start);
    if (data != raw)
        ::munmap(raw, static_cast<std::size_t>(data - raw));
    if (char *tail = data + mapped; tail != raw + mapped + HugePage)
        ::munmap(tail, static_cast<std::size_t>(raw + mapped + HugePage - tail));
#ifdef MADV_HUGEPAGE
    ::madvise(data, mapped, MADV_HUGEPAGE); // only advice: where it is declined, nothing changes
#endif
    return data;
}

void freeLarge(void *data, std::size_t size) noexcept
{
    if (!data)
        return;
#ifdef VORLANE_CHECKED_MEMORY
    (void)size;
    ::operator delete(data);
#else
    ::munmap(data, blockSize(size));
#endif
}

std::size_t largeBlockSize(std::size_t size)
{
    return blockSize(size);
}

} // namespace vorlane
