#include "io/ChunkWriter.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace vorlane {

ChunkWriter::ChunkWriter(WriteAll writeAll, Written written, int maxChunks)
    : m_writeAll(std::move(writeAll))
    , m_written(std::move(written))
    , m_maxChunks(std::max(maxChunks, 1))
{
    // The writer thread hands chunks back without allocating.
    m_free.reserve(static_cast<std::size_t>(m_maxChunks));
}

// Without finish() the producer did not get to the end (it threw): what it put and is not
// written yet is dropped.
ChunkWriter::~ChunkWriter()
{
    abandon();
}

ByteBuffer ChunkWriter::next(std::size_t room)
{
    // A file of one chunk is written by finish(), without a thread: the thread starts when
    // a second chunk is asked for.
    if (!m_thread.joinable() && !m_inline && m_putCount > 0) {
        try {
            m_thread = std::thread([this] { run(true); });
        } catch (const std::system_error &) {
            m_inline = true; // no thread to be had: put() writes each chunk itself
            run(false);
        }
    }
    ByteBuffer chunk;
    {
        std::unique_lock lock(m_mutex);
        if (!m_free.empty() || m_chunks >= m_maxChunks) {
            m_changed.wait(lock, [this] { return !m_free.empty(); });
            chunk = std::move(m_free.back());
            m_free.pop_back();
        } else {
            ++m_chunks; // made below, outside the lock
        }
    }
    // The first chunk is small, as most files are; the next ones are a huge page each.
    chunk.clear();
    chunk.reserve(std::max(room, m_putCount == 0 ? FirstChunkSize : ChunkSize));
    return chunk;
}

void ChunkWriter::put(ByteBuffer full)
{
    ++m_putCount;
    if (full.capacity() == 0)
        return; // no chunk of this writer
    {
        std::lock_guard lock(m_mutex);
        if (full.empty())
            m_free.push_back(std::move(full));
        else
            m_full.push_back(std::move(full));
    }
    m_changed.notify_all();
    if (m_inline)
        run(false);
}

int ChunkWriter::finish()
{
    {
        std::lock_guard lock(m_mutex);
        m_finished = true;
    }
    m_changed.notify_all();
    if (m_thread.joinable())
        m_thread.join();
    else
        run(false); // what is left, on this thread
    return m_error;
}

void ChunkWriter::abandon()
{
    {
        std::lock_guard lock(m_mutex);
        m_abandoned = true;
    }
    finish();
}

void ChunkWriter::run(bool wait)
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        if (wait)
            m_changed.wait(lock, [this] { return !m_full.empty() || m_finished; });
        if (m_full.empty())
            return;
        ByteBuffer chunk = std::move(m_full.front());
        m_full.pop_front();
        const bool skip = m_error != 0 || m_abandoned;
        lock.unlock();
        const int error = skip ? 0 : m_writeAll(chunk.data(), chunk.size());
        if (!skip && error == 0 && m_written)
            m_written();
        lock.lock();
        if (error != 0)
            m_error = error;
        m_free.push_back(std::move(chunk));
        m_changed.notify_all();
    }
}

} // namespace vorlane
