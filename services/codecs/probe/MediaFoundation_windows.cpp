#include "ComPointer_windows.h"
#include "Implementations.h"
#include "Library.h"

#include "platform/CodecNames.h"

#include <initguid.h>

#include <mfapi.h>
#include <mfidl.h>
#include <mftransform.h>

#include <optional>

namespace Probe
{

namespace
{

using Vorlan::Conf::IFormatCodecAudio;
using Vorlan::Conf::IFormatCodecVideo;

struct Format
{
    GUID majorType;
    GUID subtype;
    GUID encoders; // categories of transforms
    GUID decoders;
};

std::optional<Format> FormatOf(const std::string& name)
{
    const auto audio = [](const GUID& subtype)
    {
        return Format{
            MFMediaType_Audio, subtype, MFT_CATEGORY_AUDIO_ENCODER, MFT_CATEGORY_AUDIO_DECODER};
    };
    const auto video = [](const GUID& subtype)
    {
        return Format{
            MFMediaType_Video, subtype, MFT_CATEGORY_VIDEO_ENCODER, MFT_CATEGORY_VIDEO_DECODER};
    };
    if (name == IFormatCodecAudio::CODEC_ID_AAC)
        return audio(MFAudioFormat_AAC);
    if (name == IFormatCodecAudio::CODEC_ID_AC3)
        return audio(MFAudioFormat_Dolby_AC3);
    if (name == IFormatCodecVideo::CODEC_ID_H264)
        return video(MFVideoFormat_H264);
    if (name == IFormatCodecVideo::CODEC_ID_H265)
        return video(MFVideoFormat_HEVC);
    if (name == IFormatCodecVideo::CODEC_ID_WMV3)
        return video(MFVideoFormat_WMV3);
    return std::nullopt;
}

// Media Foundation of this system; editions of Windows exist that lack it.
class MediaFoundation
{
public:
    MediaFoundation()
        : startup(library.Find<decltype(MFStartup)>("MFStartup")),
          shutdown(library.Find<decltype(MFShutdown)>("MFShutdown")),
          enumerate(library.Find<decltype(MFTEnumEx)>("MFTEnumEx"))
    {
        comResult = CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    }
    MediaFoundation(const MediaFoundation&) = delete;
    MediaFoundation& operator=(const MediaFoundation&) = delete;
    ~MediaFoundation()
    {
        if (isStarted)
            shutdown();
        if (SUCCEEDED(comResult))
            CoUninitialize();
    }

    bool IsThere() const { return startup && shutdown && enumerate; }

    HRESULT Start()
    {
        const HRESULT result = startup(MF_VERSION, MFSTARTUP_LITE);
        isStarted = SUCCEEDED(result);
        return result;
    }

    // Makes the first transform that takes or gives the format; nothing where there is none.
    std::optional<HRESULT> OpenFirst(const GUID& category, const MFT_REGISTER_TYPE_INFO* input,
        const MFT_REGISTER_TYPE_INFO* output) const
    {
        IMFActivate** found = nullptr;
        UINT32 count = 0;
        const UINT32 kinds = MFT_ENUM_FLAG_SYNCMFT | MFT_ENUM_FLAG_ASYNCMFT |
                             MFT_ENUM_FLAG_HARDWARE | MFT_ENUM_FLAG_SORTANDFILTER;
        if (FAILED(enumerate(category, kinds, input, output, &found, &count)) || count == 0)
            return std::nullopt;
        ComPointer<IMFTransform> transform;
        const HRESULT result =
            found[0]->ActivateObject(IID_IMFTransform, reinterpret_cast<void**>(transform.Put()));
        for (UINT32 i = 0; i < count; ++i)
            found[i]->Release();
        CoTaskMemFree(found);
        return result;
    }

private:
    Library library{"mfplat.dll"};
    decltype(MFStartup)* startup;
    decltype(MFShutdown)* shutdown;
    decltype(MFTEnumEx)* enumerate;
    HRESULT comResult = E_FAIL;
    bool isStarted = false;
};

} // namespace

Answer TryMediaFoundation(const std::string& codec)
{
    const std::optional<Format> format = FormatOf(codec);
    if (!format)
        return NotPresent("Media Foundation does not know this codec");
    MediaFoundation foundation;
    if (!foundation.IsThere())
        return NotPresent("no Media Foundation");
    if (const HRESULT result = foundation.Start(); FAILED(result))
        return result == E_NOTIMPL ? NotPresent("no Media Foundation")
                                   : Unusable("MFStartup", result);
    const MFT_REGISTER_TYPE_INFO type{format->majorType, format->subtype};
    const auto encoder = foundation.OpenFirst(format->encoders, nullptr, &type);
    const auto decoder = foundation.OpenFirst(format->decoders, &type, nullptr);
    if (encoder && FAILED(*encoder))
        return Unusable("activating the encoder", *encoder);
    if (decoder && FAILED(*decoder))
        return Unusable("activating the decoder", *decoder);
    return encoder || decoder ? Usable() : NotPresent("no transform for this codec");
}

} // namespace Probe
