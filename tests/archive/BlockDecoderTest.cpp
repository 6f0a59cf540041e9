#include "archive/BlockDecoder.h"
#include "platform/Path.h"
#include "support/Machine.h"

#include <gtest/gtest.h>

#include <atomic>
#include <numeric>

using namespace Vorlan;

namespace
{

// A heap that has no room for one of its allocations: the first of that size.
struct ShortHeap
{
    ISzAlloc calls{Allocate, Free}; // the first member: the decoder hands on its address
    std::size_t refusedSize = 0;
    std::atomic<int> refusals = 0;

    static void* Allocate(ISzAllocPtr self, std::size_t size)
    {
        auto& heap = *reinterpret_cast<ShortHeap*>(const_cast<ISzAlloc*>(self));
        if (size == heap.refusedSize && heap.refusals++ == 0)
            return nullptr;
        return SzAlloc(self, size);
    }
    static void Free(ISzAllocPtr self, void* address) { SzFree(self, address); }
};

} // namespace

TEST(BlockDecoder, BlockWithoutMemoryIsDecodedAgainInItsTurn)
{
    const std::wstring path = Platform::WideFromText(Payload("many-blocks.7z"));
    ArchiveStream stream;
    ASSERT_TRUE(stream.Open(path));
    CrcGenerateTable();
    const ISzAlloc heap = {SzAlloc, SzFree};
    CSzArEx database;
    SzArEx_Init(&database);
    ASSERT_EQ(SzArEx_Open(&database, stream.Get(), &heap, &heap), SZ_OK);
    std::vector<UInt32> blocks(database.db.NumFolders);
    std::iota(blocks.begin(), blocks.end(), 0);
    ASSERT_GE(blocks.size(), 2U);

    ShortHeap shortHeap;
    shortHeap.refusedSize = SzAr_GetFolderUnpackSize(&database.db, blocks.back());
    {
        BlockDecoder decoder(database, stream, path, blocks, &shortHeap.calls);
        for (const UInt32 index : blocks)
        {
            const BlockDecoder::Block* const block = decoder.Next();
            ASSERT_TRUE(block) << index;
            EXPECT_EQ(block->index, index);
        }
    }
    EXPECT_GE(shortHeap.refusals, 1);
    SzArEx_Free(&database, &heap);
}
