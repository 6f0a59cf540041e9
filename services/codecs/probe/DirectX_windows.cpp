#include "ComPointer_windows.h"
#include "Implementations.h"
#include "Library.h"

#include "platform/CodecNames.h"

#include <initguid.h>

#include <d3d11.h>
#include <d3d9.h>
#include <dxva2api.h>

#include <optional>

namespace Probe
{

namespace
{

using Codec = Vorlan::Conf::IFormatCodecVideo;

// DXVA_ModeHEVC_VLD_Main of the DXVA specification for HEVC.
constexpr GUID hevcMain = {
    0x5b11d51b, 0x2f4c, 0x4452, {0xbc, 0xc3, 0x09, 0xf2, 0xa1, 0x16, 0x0c, 0xc0}};

std::optional<GUID> ProfileOf(const std::string& name)
{
    if (name == Codec::CODEC_ID_H264)
        return DXVA2_ModeH264_E;
    if (name == Codec::CODEC_ID_H265)
        return hevcMain;
    if (name == Codec::CODEC_ID_WMV3)
        return DXVA2_ModeVC1_D;
    return std::nullopt;
}

// Whether the machine has no such device; every other failure is one of a device that is there.
bool MeansNoDevice(HRESULT result)
{
    return result == DXGI_ERROR_UNSUPPORTED || result == DXGI_ERROR_NOT_FOUND ||
           result == DXGI_ERROR_SDK_COMPONENT_MISSING || result == E_INVALIDARG ||
           result == E_NOTIMPL;
}

Answer OpenDecoder(ID3D11VideoDevice& device, const GUID& profile)
{
    BOOL isSupported = FALSE;
    const HRESULT asked = device.CheckVideoDecoderFormat(&profile, DXGI_FORMAT_NV12, &isSupported);
    if (FAILED(asked) && !MeansNoDevice(asked))
        return Unusable("CheckVideoDecoderFormat", asked);
    if (FAILED(asked) || !isSupported)
        return NotPresent("the device does not decode this codec");
    const D3D11_VIDEO_DECODER_DESC description{
        profile, pictureWidth, pictureHeight, DXGI_FORMAT_NV12};
    D3D11_VIDEO_DECODER_CONFIG config{};
    if (const HRESULT result = device.GetVideoDecoderConfig(&description, 0, &config);
        FAILED(result))
        return Unusable("GetVideoDecoderConfig", result);
    ComPointer<ID3D11VideoDecoder> decoder;
    const HRESULT result = device.CreateVideoDecoder(&description, &config, decoder.Put());
    return SUCCEEDED(result) ? Usable() : Unusable("CreateVideoDecoder", result);
}

} // namespace

Answer TryDirectX(const std::string& codec)
{
    const std::optional<GUID> profile = ProfileOf(codec);
    if (!profile)
        return NotPresent("DirectX does not know this codec");
    const Library library("d3d11.dll");
    auto* const createDevice = library.Find<decltype(D3D11CreateDevice)>("D3D11CreateDevice");
    if (!createDevice)
        return NotPresent("no Direct3D 11");
    ComPointer<ID3D11Device> device;
    if (const HRESULT result = createDevice(nullptr, D3D_DRIVER_TYPE_HARDWARE, nullptr,
            D3D11_CREATE_DEVICE_VIDEO_SUPPORT, nullptr, 0, D3D11_SDK_VERSION, device.Put(), nullptr,
            nullptr);
        FAILED(result))
        return MeansNoDevice(result) ? NotPresent("no device with video support")
                                     : Unusable("D3D11CreateDevice", result);
    ComPointer<ID3D11VideoDevice> videoDevice;
    if (FAILED(device->QueryInterface(
            IID_ID3D11VideoDevice, reinterpret_cast<void**>(videoDevice.Put()))))
        return NotPresent("the device has no video interface");
    return OpenDecoder(*videoDevice.Get(), *profile);
}

} // namespace Probe
