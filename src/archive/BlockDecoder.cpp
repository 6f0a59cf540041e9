#include "archive/BlockDecoder.h"

#include <algorithm>
#include <exception>
#include <limits>
#include <thread>

namespace Vorlan
{

namespace
{

constexpr ISzAlloc heap = {SzAlloc, SzFree};
constexpr std::size_t smallestBudget = std::size_t{256} << 20; // bytes

std::size_t TwoOf(std::size_t size)
{
    const std::size_t most = std::numeric_limits<std::size_t>::max();
    return size > most / 2 ? most : 2 * size;
}

} // namespace

BlockDecoder::BlockDecoder(const CSzArEx& archive, ArchiveStream& stream, const std::wstring& path,
    const std::vector<UInt32>& blocks)
    : database(archive), slots(blocks.size()), budget(smallestBudget)
{
    for (std::size_t i = 0; i < blocks.size(); ++i)
    {
        Block& block = slots[i].block;
        block.index = blocks[i];
        block.size = static_cast<std::size_t>(SzAr_GetFolderUnpackSize(&database.db, blocks[i]));
        budget = std::max(budget, TwoOf(block.size));
    }
    const std::size_t threads =
        std::min<std::size_t>(slots.size(), std::max(1u, std::thread::hardware_concurrency()));
    if (threads > 0)
        StartWorker(stream);
    // Where a thread cannot be created, fewer do the same work.
    while (workers.size() < threads && StartFurtherWorker(path))
    {
    }
}

void BlockDecoder::StartWorker(ArchiveStream& stream)
{
    workers.push_back(std::async(std::launch::async, [this, &stream] { Work(stream); }));
}

bool BlockDecoder::StartFurtherWorker(const std::wstring& path)
{
    try
    {
        furtherStreams.push_back(std::make_unique<ArchiveStream>());
        if (!furtherStreams.back()->Open(path))
            return false;
        StartWorker(*furtherStreams.back());
        return true;
    }
    catch (const std::exception&)
    {
        return false;
    }
}

BlockDecoder::~BlockDecoder()
{
    {
        const std::lock_guard lock(mutex);
        isStopped = true;
    }
    changed.notify_all();
    workers.clear(); // waits for them
    for (Slot& slot : slots)
        Release(slot);
}

BlockDecoder::Block* BlockDecoder::Next()
{
    std::unique_lock lock(mutex);
    if (handedOut > 0)
    {
        Release(slots[handedOut - 1]);
        changed.notify_all();
    }
    Slot& slot = slots[handedOut++];
    changed.wait(lock, [&slot] { return slot.isDone; });
    return slot.isGood ? &slot.block : nullptr;
}

void BlockDecoder::Work(ArchiveStream& stream)
{
    while (Slot* slot = Reserve())
    {
        const bool isGood = Decode(slot->block, stream);
        {
            const std::lock_guard lock(mutex);
            slot->isGood = isGood;
            slot->isDone = true;
        }
        changed.notify_all();
    }
}

// Blocks are reserved in order, so that the one that is waited for always gets its memory: when its
// turn comes, those before it have been released.
BlockDecoder::Slot* BlockDecoder::Reserve()
{
    std::unique_lock lock(mutex);
    changed.wait(lock, [this] { return isStopped || reserved == slots.size() || FitsNext(); });
    if (isStopped || reserved == slots.size())
        return nullptr;
    Slot& slot = slots[reserved++];
    inUse += slot.block.size;
    return &slot;
}

bool BlockDecoder::FitsNext() const
{
    return inUse == 0 || slots[reserved].block.size <= budget - inUse;
}

bool BlockDecoder::Decode(Block& block, ArchiveStream& stream) const
{
    block.data = static_cast<Byte*>(ISzAlloc_Alloc(&heap, block.size));
    return block.data && SzAr_DecodeFolder(&database.db, block.index, stream.Get(),
                             database.dataPos, block.data, block.size, &heap) == SZ_OK;
}

void BlockDecoder::Release(Slot& slot)
{
    if (!slot.isDone)
        return;
    ISzAlloc_Free(&heap, slot.block.data);
    slot.block.data = nullptr;
    slot.isDone = false;
    inUse -= slot.block.size;
}

} // namespace Vorlan
