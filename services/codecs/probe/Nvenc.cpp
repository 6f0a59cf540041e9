#include "Cuda.h"
#include "Implementations.h"

#include "platform/CodecNames.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace Probe
{

namespace
{

using Codec = Vorlan::Conf::IFormatCodecVideo;

std::optional<GUID> CodecOf(const std::string& name)
{
    if (name == Codec::CODEC_ID_H264)
        return NV_ENC_CODEC_H264_GUID;
    if (name == Codec::CODEC_ID_H265)
        return NV_ENC_CODEC_HEVC_GUID;
    return std::nullopt;
}

// An encoding session on a CUDA context.
class Session
{
public:
    Session() = default;
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session()
    {
        if (encoder)
            api.nvEncDestroyEncoder(encoder);
    }

    Answer Try(CUcontext context, const GUID& codec)
    {
        if (!nvenc)
            return NotPresent("no NVENC library");
        if (IsDriverTooOld())
            return NotPresent("the driver is older than this NVENC interface");
        api.version = NV_ENCODE_API_FUNCTION_LIST_VER;
        if (const int error = nvenc->NvEncodeAPICreateInstance(&api))
            return Unusable("NvEncodeAPICreateInstance", error);
        if (const int error = Open(context))
        {
            const bool isAbsent =
                error == NV_ENC_ERR_NO_ENCODE_DEVICE || error == NV_ENC_ERR_UNSUPPORTED_DEVICE;
            return isAbsent ? NotPresent("the device does not encode")
                            : Unusable("NvEncOpenEncodeSessionEx", error);
        }
        if (!IsSupported(codec))
            return NotPresent("the device does not encode this codec");
        const int error = Initialize(codec);
        return error == NV_ENC_SUCCESS ? Usable() : Unusable("NvEncInitializeEncoder", error);
    }

private:
    // The driver's highest version has the minor number in its lowest four bits; see nvEncodeAPI.h.
    bool IsDriverTooOld() const
    {
        std::uint32_t highest = 0;
        return nvenc->NvEncodeAPIGetMaxSupportedVersion(&highest) == NV_ENC_SUCCESS &&
               highest < ((NVENCAPI_MAJOR_VERSION << 4) | NVENCAPI_MINOR_VERSION);
    }

    int Open(CUcontext context)
    {
        NV_ENC_OPEN_ENCODE_SESSION_EX_PARAMS parameters{};
        parameters.version = NV_ENC_OPEN_ENCODE_SESSION_EX_PARAMS_VER;
        parameters.deviceType = NV_ENC_DEVICE_TYPE_CUDA;
        parameters.device = context;
        parameters.apiVersion = NVENCAPI_VERSION;
        return api.nvEncOpenEncodeSessionEx(&parameters, &encoder);
    }

    bool IsSupported(const GUID& codec) const
    {
        std::uint32_t count = 0;
        if (api.nvEncGetEncodeGUIDCount(encoder, &count) != NV_ENC_SUCCESS)
            return true; // what is wrong shows when it is opened
        std::vector<GUID> codecs(count);
        api.nvEncGetEncodeGUIDs(encoder, codecs.data(), count, &count);
        return std::any_of(codecs.begin(), codecs.end(),
            [&](const GUID& known) { return std::memcmp(&known, &codec, sizeof(GUID)) == 0; });
    }

    int Initialize(const GUID& codec) const
    {
        NV_ENC_PRESET_CONFIG preset{};
        preset.version = NV_ENC_PRESET_CONFIG_VER;
        preset.presetCfg.version = NV_ENC_CONFIG_VER;
        if (const int error = api.nvEncGetEncodePresetConfigEx(
                encoder, codec, NV_ENC_PRESET_P4_GUID, NV_ENC_TUNING_INFO_HIGH_QUALITY, &preset))
            return error;
        NV_ENC_INITIALIZE_PARAMS parameters{};
        parameters.version = NV_ENC_INITIALIZE_PARAMS_VER;
        parameters.encodeGUID = codec;
        parameters.presetGUID = NV_ENC_PRESET_P4_GUID;
        parameters.tuningInfo = NV_ENC_TUNING_INFO_HIGH_QUALITY;
        parameters.encodeWidth = parameters.darWidth = pictureWidth;
        parameters.encodeHeight = parameters.darHeight = pictureHeight;
        parameters.frameRateNum = 25;
        parameters.frameRateDen = 1;
        parameters.enablePTD = 1;
        parameters.encodeConfig = &preset.presetCfg;
        return api.nvEncInitializeEncoder(encoder, &parameters);
    }

    NvidiaFunctions<NvencLoader> nvenc;
    NV_ENCODE_API_FUNCTION_LIST api{};
    void* encoder = nullptr;
};

} // namespace

Answer TryNvenc(const std::string& codec)
{
    const std::optional<GUID> id = CodecOf(codec);
    if (!id)
        return NotPresent("NVENC does not know this codec");
    CudaContext context;
    if (const std::optional<Answer> answer = context.Open())
        return *answer;
    return Session().Try(context.Get(), *id);
}

} // namespace Probe
