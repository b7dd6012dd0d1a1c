#pragma once

#include "io/ByteBuffer.h"

#include <cstddef>
#include <functional>

namespace vorlane {

// Where a writer hands the bytes of a file, a chunk at a time, while it produces them: the
// file can be written while the next chunk is produced, and no buffer holds the whole file.
class ChunkSink
{
public:
    virtual ~ChunkSink() = default;
    // An empty buffer to fill, with room for at least `room` bytes.
    virtual ByteBuffer next(std::size_t room) = 0;
    // Takes the bytes of `full`, up to its size: the next bytes of the file.
    virtual void put(ByteBuffer full) = 0;
};

// Produces a file's bytes into a sink, in order.
using ChunkProducer = std::function<void(ChunkSink &)>;

} // namespace vorlane
