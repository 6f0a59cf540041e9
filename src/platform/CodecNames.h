#pragma once

// The product's names of codecs and their implementations: in settings, in the lists of what is
// broken, in the registry, and on the probe program's command line.

namespace Vorlan::Proc::ImplNames
{

inline constexpr char QSV[] = "QSV";
inline constexpr char MEDIA_FOUNDATION[] = "MEDIA_FOUNDATION";
inline constexpr char VIDEO_TOOLBOX_HW[] = "VIDEO_TOOLBOX_HW";
inline constexpr char VIDEO_TOOLBOX_SW[] = "VIDEO_TOOLBOX_SW";
inline constexpr char AUDIO_TOOLBOX[] = "AUDIO_TOOLBOX";
inline constexpr char NVENC[] = "NVENC";
inline constexpr char NVDEC[] = "NVDEC";
inline constexpr char AMF[] = "AMF";
inline constexpr char DIRECTX[] = "DIRECTX";

} // namespace Vorlan::Proc::ImplNames

namespace Vorlan::Conf
{

struct IFormatCodecAudio
{
    static constexpr char CODEC_ID_AAC[] = "AAC";
    static constexpr char CODEC_ID_AC3[] = "AC3";
};

struct IFormatCodecVideo
{
    static constexpr char CODEC_ID_H264[] = "H264";
    static constexpr char CODEC_ID_H265[] = "H265";
    static constexpr char CODEC_ID_WMV3[] = "WMV3";
};

} // namespace Vorlan::Conf
