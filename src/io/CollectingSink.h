#pragma once

#include "io/ChunkSink.h"

namespace vorlane {

// Keeps every byte put to it, in order, in one buffer: a file's bytes in memory.
class CollectingSink final : public ChunkSink
{
public:
    ByteBuffer next(std::size_t room) override;
    void put(ByteBuffer full) override;

    const ByteBuffer &bytes() const { return m_bytes; }

private:
    ByteBuffer m_bytes;
    ByteBuffer m_spare; // the last chunk put, handed out again
};

} // namespace vorlane
