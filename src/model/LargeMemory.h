#pragma once

#include <cstddef>

namespace vorlane {

// Memory for the few large things of the program: the document (about 10 MB, most of it
// the sprites' frames), a project file while it is read, the chunks of a file while it is
// written. It comes straight from the system, in 2 MB huge pages where the system allows
// them, so that filling it costs a handful of page faults instead of thousands; the rest of a
// block, and smaller blocks, come in 4 kB pages. A new block holds zero bytes.
// allocateLarge throws std::bad_alloc when the system has no memory to give.
void *allocateLarge(std::size_t size);
void freeLarge(void *data, std::size_t size) noexcept;
// The bytes a block allocated for `size` bytes really holds, all of them usable.
std::size_t largeBlockSize(std::size_t size);

} // namespace vorlane
