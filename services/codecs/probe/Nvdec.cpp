#include "Cuda.h"
#include "Implementations.h"

#include "platform/CodecNames.h"

namespace Probe
{

namespace
{

using Codec = Vorlan::Conf::IFormatCodecVideo;

std::optional<cudaVideoCodec> CodecOf(const std::string& name)
{
    if (name == Codec::CODEC_ID_H264)
        return cudaVideoCodec_H264;
    if (name == Codec::CODEC_ID_H265)
        return cudaVideoCodec_HEVC;
    if (name == Codec::CODEC_ID_WMV3)
        return cudaVideoCodec_VC1;
    return std::nullopt;
}

using Cuvid = NvidiaFunctions<CuvidLoader>;

// Whether the device decodes it at all; a driver too old to say so is tried.
bool IsSupported(const Cuvid& cuvid, cudaVideoCodec codec)
{
    if (!cuvid->cuvidGetDecoderCaps)
        return true;
    CUVIDDECODECAPS caps{};
    caps.eCodecType = codec;
    caps.eChromaFormat = cudaVideoChromaFormat_420;
    return cuvid->cuvidGetDecoderCaps(&caps) != CUDA_SUCCESS || caps.bIsSupported;
}

CUVIDDECODECREATEINFO Description(cudaVideoCodec codec)
{
    CUVIDDECODECREATEINFO description{};
    description.CodecType = codec;
    description.ChromaFormat = cudaVideoChromaFormat_420;
    description.OutputFormat = cudaVideoSurfaceFormat_NV12;
    description.DeinterlaceMode = cudaVideoDeinterlaceMode_Weave;
    description.ulCreationFlags = cudaVideoCreate_PreferCUVID;
    description.ulWidth = description.ulTargetWidth = description.ulMaxWidth = pictureWidth;
    description.ulHeight = description.ulTargetHeight = description.ulMaxHeight = pictureHeight;
    description.ulNumDecodeSurfaces = 8;
    description.ulNumOutputSurfaces = 1;
    return description;
}

} // namespace

Answer TryNvdec(const std::string& codec)
{
    const std::optional<cudaVideoCodec> type = CodecOf(codec);
    if (!type)
        return NotPresent("NVDEC does not know this codec");
    CudaContext context;
    if (const std::optional<Answer> answer = context.Open())
        return *answer;
    const Cuvid cuvid;
    if (!cuvid)
        return NotPresent("no NVDEC library");
    if (!IsSupported(cuvid, *type))
        return NotPresent("the device does not decode this codec");
    CUVIDDECODECREATEINFO description = Description(*type);
    CUvideodecoder decoder = nullptr;
    if (const int error = cuvid->cuvidCreateDecoder(&decoder, &description))
        return Unusable("cuvidCreateDecoder", error);
    const int error = cuvid->cuvidDestroyDecoder(decoder);
    return error == CUDA_SUCCESS ? Usable() : Unusable("cuvidDestroyDecoder", error);
}

} // namespace Probe
