#include "Implementations.h"
#include "Library.h"
#include "QsvDevice.h"

#include "platform/CodecNames.h"

#define MFX_DEPRECATED_OFF
#include <vpl/mfx.h>

#include <optional>

namespace Probe
{

namespace
{

using Codec = Vorlan::Conf::IFormatCodecVideo;

std::optional<mfxU32> CodecOf(const std::string& name)
{
    if (name == Codec::CODEC_ID_H264)
        return MFX_CODEC_AVC;
    if (name == Codec::CODEC_ID_H265)
        return MFX_CODEC_HEVC;
    if (name == Codec::CODEC_ID_WMV3)
        return MFX_CODEC_VC1;
    return std::nullopt;
}

mfxVideoParam Parameters(mfxU32 codec)
{
    mfxVideoParam parameters{};
    parameters.mfx.CodecId = codec;
    parameters.mfx.FrameInfo.FourCC = MFX_FOURCC_NV12;
    parameters.mfx.FrameInfo.ChromaFormat = MFX_CHROMAFORMAT_YUV420;
    parameters.mfx.FrameInfo.PicStruct = MFX_PICSTRUCT_PROGRESSIVE;
    parameters.mfx.FrameInfo.Width = parameters.mfx.FrameInfo.CropW = pictureWidth;
    parameters.mfx.FrameInfo.Height = parameters.mfx.FrameInfo.CropH = pictureHeight;
    parameters.mfx.FrameInfo.FrameRateExtN = 25;
    parameters.mfx.FrameInfo.FrameRateExtD = 1;
    return parameters;
}

// A session with the hardware through one of the libraries.
class Session
{
public:
    explicit Session(const char* libraryName)
        : library(libraryName),
          init(library.Find<decltype(MFXInitEx)>("MFXInitEx")),
          close(library.Find<decltype(MFXClose)>("MFXClose")),
          setHandle(library.Find<decltype(MFXVideoCORE_SetHandle)>("MFXVideoCORE_SetHandle")),
          decodeInit(library.Find<decltype(MFXVideoDECODE_Init)>("MFXVideoDECODE_Init")),
          encodeInit(library.Find<decltype(MFXVideoENCODE_Init)>("MFXVideoENCODE_Init"))
    {
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session()
    {
        if (session)
            close(session); // and with it the codecs
    }

    bool IsThere() const { return init && close && setHandle && decodeInit && encodeInit; }

    mfxStatus Open()
    {
        mfxInitParam parameters{};
        parameters.Implementation = MFX_IMPL_HARDWARE_ANY;
        parameters.Version.Major = 1;
        const mfxStatus status = init(parameters, &session);
        if (status < MFX_ERR_NONE || !device.Handle())
            return status;
        return setHandle(session, MFX_HANDLE_VA_DISPLAY, device.Handle());
    }

    mfxStatus OpenDecoder(mfxU32 codec) const
    {
        mfxVideoParam parameters = Parameters(codec);
        parameters.IOPattern = MFX_IOPATTERN_OUT_SYSTEM_MEMORY;
        return decodeInit(session, &parameters);
    }

    mfxStatus OpenEncoder(mfxU32 codec) const
    {
        mfxVideoParam parameters = Parameters(codec);
        parameters.IOPattern = MFX_IOPATTERN_IN_SYSTEM_MEMORY;
        parameters.mfx.TargetUsage = MFX_TARGETUSAGE_BALANCED;
        parameters.mfx.RateControlMethod = MFX_RATECONTROL_CQP;
        parameters.mfx.QPI = parameters.mfx.QPP = parameters.mfx.QPB = 26;
        return encodeInit(session, &parameters);
    }

private:
    QsvDevice device;
    Library library;
    decltype(MFXInitEx)* init;
    decltype(MFXClose)* close;
    decltype(MFXVideoCORE_SetHandle)* setHandle;
    decltype(MFXVideoDECODE_Init)* decodeInit;
    decltype(MFXVideoENCODE_Init)* encodeInit;
    mfxSession session = nullptr;
};

bool IsAbsent(mfxStatus status)
{
    return status == MFX_ERR_UNSUPPORTED || status == MFX_ERR_NOT_FOUND;
}

Answer TryCodec(const Session& session, mfxU32 codec)
{
    const mfxStatus decoding = session.OpenDecoder(codec);
    const mfxStatus encoding = session.OpenEncoder(codec);
    if (decoding < MFX_ERR_NONE && !IsAbsent(decoding))
        return Unusable("MFXVideoDECODE_Init", decoding);
    // What it does not encode is refused as an invalid parameter.
    if (encoding < MFX_ERR_NONE && !IsAbsent(encoding) && encoding != MFX_ERR_INVALID_VIDEO_PARAM)
        return Unusable("MFXVideoENCODE_Init", encoding);
    const bool isAny = decoding >= MFX_ERR_NONE || encoding >= MFX_ERR_NONE;
    return isAny ? Usable() : NotPresent("the device does not have this codec");
}

} // namespace

Answer TryQsv(const std::string& codec)
{
    const std::optional<mfxU32> id = CodecOf(codec);
    if (!id)
        return NotPresent("QSV does not know this codec");
    for (const char* name : QsvDevice::LibraryNames())
    {
        Session session(name);
        if (!session.IsThere())
            continue;
        const mfxStatus status = session.Open();
        if (IsAbsent(status))
            return NotPresent("no device for QSV");
        return status < MFX_ERR_NONE ? Unusable("MFXInitEx", status) : TryCodec(session, *id);
    }
    return NotPresent("no QSV library");
}

} // namespace Probe
