#include <gtest/gtest.h>

#include <7zAlloc.h>
#include <LzmaDec.h>
#include <LzmaEnc.h>

#include <algorithm>
#include <random>
#include <string_view>
#include <utility>
#include <vector>

// The SDK's decoder in C, beside the one that the engine is linked with.
extern "C"
{
    decltype(LzmaDec_Allocate) PlainLzmaDec_Allocate;
    decltype(LzmaDec_Init) PlainLzmaDec_Init;
    decltype(LzmaDec_DecodeToBuf) PlainLzmaDec_DecodeToBuf;
    decltype(LzmaDec_Free) PlainLzmaDec_Free;
}

namespace
{

using Bytes = std::vector<Byte>;
constexpr ISzAlloc heap = {SzAlloc, SzFree};
constexpr std::size_t contentSize = 60'000, headerSize = LZMA_PROPS_SIZE;

struct Decoder
{
    decltype(&LzmaDec_Allocate) allocate;
    decltype(&LzmaDec_Init) init;
    decltype(&LzmaDec_DecodeToBuf) decode;
    decltype(&LzmaDec_Free) free;
};
constexpr Decoder linked = {LzmaDec_Allocate, LzmaDec_Init, LzmaDec_DecodeToBuf, LzmaDec_Free};
constexpr Decoder plain = {
    PlainLzmaDec_Allocate, PlainLzmaDec_Init, PlainLzmaDec_DecodeToBuf, PlainLzmaDec_Free};

// Noise, and copies of earlier bytes from near and far, some of them changed: every kind of symbol.
Bytes MakeContent(std::mt19937& random)
{
    Bytes content;
    while (content.size() < contentSize)
    {
        const std::size_t length = 1 + random() % (random() % 8 == 0 ? 600 : 12);
        const bool isCopy = !content.empty() && random() % 3 > 0;
        const std::size_t from = isCopy ? random() % content.size() : 0;
        for (std::size_t i = 0; i < length; ++i)
            content.push_back(
                isCopy && random() % 16 > 0 ? content[from + i] : static_cast<Byte>(random() % 96));
    }
    content.resize(contentSize);
    return content;
}

// The properties of the stream and its data.
Bytes Compress(const Bytes& content, int lc, int lp, int pb, UInt32 dictionary, bool hasEndMark)
{
    CLzmaEncProps settings;
    LzmaEncProps_Init(&settings);
    settings.lc = lc;
    settings.lp = lp;
    settings.pb = pb;
    settings.dictSize = dictionary;
    Bytes stream(2 * contentSize);
    SizeT size = stream.size() - headerSize, sizeOfHeader = headerSize;
    EXPECT_EQ(LzmaEncode(stream.data() + headerSize, &size, content.data(), contentSize, &settings,
                  stream.data(), &sizeOfHeader, hasEndMark, nullptr, &heap, &heap),
        SZ_OK);
    stream.resize(headerSize + size);
    return stream;
}

// The decoded bytes; result and positions of each call, and the decoder's state in the end. The
// sizes of the pieces depend on the seed alone.
std::pair<Bytes, std::vector<std::uint64_t>> Decode(
    const Decoder& decoder, const Bytes& stream, unsigned seed)
{
    CLzmaDec state{};
    EXPECT_EQ(decoder.allocate(&state, stream.data(), headerSize, &heap), SZ_OK);
    decoder.init(&state);
    std::fill_n(state.dic, state.dicBufSize, Byte{0});
    std::fill_n(state.probs, state.numProbs, CLzmaProb{0});
    std::mt19937 random(seed);
    Bytes bytes;
    std::vector<std::uint64_t> trace;
    SizeT position = headerSize, consumed = 1, produced = 0;
    for (SRes result = SZ_OK;
         result == SZ_OK && consumed + produced > 0 && bytes.size() < contentSize;)
    {
        Byte piece[3000];
        produced = std::min<SizeT>(1 + random() % sizeof piece, contentSize - bytes.size());
        consumed = std::min<SizeT>(1 + random() % 2000, stream.size() - position);
        const bool isLast = bytes.size() + produced == contentSize;
        ELzmaStatus status = LZMA_STATUS_NOT_SPECIFIED;
        result = decoder.decode(&state, piece, &produced, stream.data() + position, &consumed,
            isLast ? LZMA_FINISH_END : LZMA_FINISH_ANY, &status);
        bytes.insert(bytes.end(), piece, piece + produced);
        position += consumed;
        trace.insert(
            trace.end(), {std::uint64_t(result), std::uint64_t(status), consumed, produced});
    }
    const std::string_view probabilities(
        reinterpret_cast<const char*>(state.probs), state.numProbs * sizeof *state.probs);
    trace.insert(trace.end(),
        {state.range, state.code, state.dicPos, state.processedPos, state.checkDicSize,
            state.reps[0], state.reps[1], state.reps[2], state.reps[3], state.state,
            state.remainLen, state.tempBufSize, std::hash<std::string_view>{}(probabilities)});
    decoder.free(&state, &heap);
    return {bytes, trace};
}

} // namespace

class LzmaDecoder : public testing::Test
{
protected:
    std::mt19937 random{20};
    const Bytes content = MakeContent(random);
    // The smallest dictionary makes matches cross the end of the decoder's buffer.
    const std::vector<Bytes> streams = {
        Compress(content, 3, 0, 2, 1 << 16, false),
        Compress(content, 3, 0, 2, 1 << 12, true),
        Compress(content, 0, 4, 4, 1 << 12, false),
        Compress(content, 8, 0, 0, 1 << 14, true),
        Compress(content, 0, 2, 1, 1 << 16, true),
    };
};

TEST_F(LzmaDecoder, AssemblerDecodesWholeStreams)
{
    for (const Bytes& stream : streams)
        for (unsigned seed = 0; seed < 20; ++seed)
        {
            const auto outcome = Decode(linked, stream, seed);
            EXPECT_EQ(outcome.first, content);
            EXPECT_EQ(outcome, Decode(plain, stream, seed));
        }
}

TEST_F(LzmaDecoder, AssemblerDecodesDamagedAndCutStreamsAsCDoes)
{
    for (const Bytes& whole : streams)
        for (unsigned seed = 0; seed < 100; ++seed)
        {
            Bytes cut = whole;
            cut.resize(headerSize + random() % (whole.size() - headerSize));
            ASSERT_EQ(Decode(linked, cut, seed), Decode(plain, cut, seed)) << seed;
            Bytes damaged = whole;
            for (unsigned i = 0; i <= seed % 4; ++i)
                damaged[headerSize + random() % (damaged.size() - headerSize)] ^=
                    static_cast<Byte>(1 << random() % 8);
            ASSERT_EQ(Decode(linked, damaged, seed), Decode(plain, damaged, seed)) << seed;
        }
}
