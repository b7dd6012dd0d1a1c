#pragma once

#include "io/ChunkSink.h"

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace vorlane {

// Writes the chunks a producer puts to a file, on a thread of its own, so that the system's
// copying of one chunk overlaps the producing of the next; a file of one chunk is written
// when the producer finishes, on its thread, and so is every chunk when the system has no
// thread to give. It keeps a few chunks and hands
// them out again in turn, so the producer fills memory that is already mapped and still in
// the processor's caches; when all are waiting to be written, the producer waits. After the
// first failed write it writes nothing more. The producer holds one chunk at a time.
class ChunkWriter final : public ChunkSink
{
public:
    // The room of the first chunk, and of the later ones: one huge page (model/LargeMemory.h).
    static constexpr std::size_t FirstChunkSize = std::size_t{64} << 10;
    static constexpr std::size_t ChunkSize = std::size_t{2} << 20;

    // Writes `size` bytes at `data` to the file; 0, or the errno value of the failure.
    using WriteAll = std::function<int(const char *data, std::size_t size)>;
    // Called after each chunk written.
    using Written = std::function<void()>;

    // Chunks in all by default: one being filled, one being written, one waiting between.
    static constexpr int DefaultChunks = 3;

    explicit ChunkWriter(WriteAll writeAll, Written written = {}, int maxChunks = DefaultChunks);
    ~ChunkWriter() override;
    ChunkWriter(const ChunkWriter &) = delete;
    ChunkWriter &operator=(const ChunkWriter &) = delete;

    ByteBuffer next(std::size_t room) override;
    // `full` is a chunk from next().
    void put(ByteBuffer full) override;

    // Waits until every chunk put is written; 0, or the errno value of the first write that
    // failed.
    int finish();
    // Writes nothing more: the chunks not yet written are dropped. For a producer that failed;
    // destroying the writer does the same.
    void abandon();

private:
    // Writes the chunks put, in order; with `wait`, waits for more until finish().
    void run(bool wait);

    const WriteAll m_writeAll;
    const Written m_written;
    const int m_maxChunks;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<ByteBuffer> m_full;  // put, not written yet
    std::vector<ByteBuffer> m_free; // written, ready to be handed out again
    int m_chunks = 0;               // made so far
    int m_putCount = 0;             // chunks put, counted by the producer's thread
    int m_error = 0;
    bool m_finished = false;
    bool m_abandoned = false;
    bool m_inline = false; // no thread: put() writes each chunk itself
    std::thread m_thread;  // started by the producer's thread, in next()
};

} // namespace vorlane
