#pragma once

#include "archive/ArchiveStream.h"

#include <condition_variable>
#include <cstddef>
#include <future>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace Vorlan
{

// Decodes the blocks of an archive ahead of their use: each block once and by one thread, as many
// at a time as there are cores, in memory of at most the larger of two blocks and 256 MiB. Used by
// one thread.
class BlockDecoder
{
public:
    struct Block
    {
        UInt32 index = 0xFFFFFFFF;
        Byte* data = nullptr;
        std::size_t size = 0;
    };

    // blocks: those that will be asked for, in that order.
    // stream: the open archive, read by this decoder only; path: for further threads.
    BlockDecoder(const CSzArEx& database, ArchiveStream& stream, const std::wstring& path,
        const std::vector<UInt32>& blocks);
    // Waits for the blocks that are being decoded.
    ~BlockDecoder();
    BlockDecoder(const BlockDecoder&) = delete;
    BlockDecoder& operator=(const BlockDecoder&) = delete;

    // The next block, valid until the next call; null when it cannot be decoded. Waits for
    // it.
    Block* Next();

private:
    struct Slot
    {
        Block block;
        bool isDone = false;
        bool isGood = false;
    };

    void StartWorker(ArchiveStream& stream);
    bool StartFurtherWorker(const std::wstring& path);
    void Work(ArchiveStream& stream);
    Slot* Reserve();
    bool Decode(Block& block, ArchiveStream& stream) const;
    bool FitsNext() const;
    void Release(Slot& slot);

    const CSzArEx& database;
    std::vector<Slot> slots;
    std::size_t budget = 0; // bytes
    std::vector<std::unique_ptr<ArchiveStream>> furtherStreams;

    std::mutex mutex; // guards what follows, and the slots' states
    std::condition_variable changed;
    std::size_t inUse = 0;    // bytes of the blocks that are reserved and not released
    std::size_t reserved = 0; // number of slots taken by the threads
    std::size_t handedOut = 0;
    bool isStopped = false;

    std::vector<std::future<void>>
        workers; // the last member: joined before the others are destroyed
};

} // namespace Vorlan
