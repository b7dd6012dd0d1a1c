#include "io/CollectingSink.h"

#include <utility>

namespace vorlane {

ByteBuffer CollectingSink::next(std::size_t room)
{
    ByteBuffer chunk = std::move(m_spare);
    chunk.clear();
    chunk.reserve(room);
    return chunk;
}

void CollectingSink::put(ByteBuffer full)
{
    m_bytes.append(full.view());
    m_spare = std::move(full);
}

} // namespace vorlane
