#include "AmfInterface_windows.h"
#include "Implementations.h"
#include "Library.h"

#include "platform/CodecNames.h"

#include <optional>

namespace Probe
{

namespace
{

using Codec = Vorlan::Conf::IFormatCodecVideo;

struct Encoder
{
    const wchar_t* id;
    const wchar_t* usage; // the property that has to be set before the encoder is opened
};

std::optional<Encoder> EncoderOf(const std::string& name)
{
    if (name == Codec::CODEC_ID_H264)
        return Encoder{L"AMFVideoEncoderVCE_AVC", L"Usage"};
    if (name == Codec::CODEC_ID_H265)
        return Encoder{L"AMFVideoEncoderHW_HEVC", L"HevcUsage"};
    return std::nullopt;
}

// Owns a context or a component, and terminates it at the end.
template <typename Object>
class Owned
{
public:
    Owned() = default;
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;
    ~Owned()
    {
        if (!object)
            return;
        object->table->terminate(object);
        object->table->release(object);
    }
    Object* Get() const { return object; }
    const auto* operator->() const { return object->table; }
    Object** Put() { return &object; }

private:
    Object* object = nullptr;
};

bool IsAbsent(Amf::Result result)
{
    return result == Amf::notSupported || result == Amf::notFound ||
           result == Amf::codecNotSupported || result == Amf::encoderNotPresent;
}

Answer TryEncoder(Amf::Factory& factory, Amf::Context& context, const Encoder& encoder)
{
    Owned<Amf::Component> component;
    Amf::Result result =
        factory.table->createComponent(&factory, &context, encoder.id, component.Put());
    if (IsAbsent(result))
        return NotPresent("the device does not encode this codec");
    if (result != Amf::ok)
        return Unusable("CreateComponent", result);
    result = component->setProperty(
        component.Get(), encoder.usage, {Amf::typeInteger, Amf::usageTranscode, 0});
    if (result != Amf::ok)
        return Unusable("SetProperty", result);
    result = component->init(component.Get(), Amf::formatNv12, pictureWidth, pictureHeight);
    if (IsAbsent(result))
        return NotPresent("the device does not encode this codec");
    return result == Amf::ok ? Usable() : Unusable("Init", result);
}

} // namespace

Answer TryAmf(const std::string& codec)
{
    const std::optional<Encoder> encoder = EncoderOf(codec);
    if (!encoder)
        return NotPresent("AMF does not know this codec");
    const Library library("amfrt64.dll");
    auto* const init = library.Find<Amf::InitFunction>("AMFInit");
    if (!init)
        return NotPresent("no AMF library");
    Amf::Factory* factory = nullptr;
    if (const Amf::Result result = init(Amf::version, &factory))
        return Unusable("AMFInit", result);
    Owned<Amf::Context> context;
    if (const Amf::Result result = factory->table->createContext(factory, context.Put()))
        return Unusable("CreateContext", result);
    if (const Amf::Result result = context->initDirectX11(context.Get(), nullptr, Amf::direct3D11))
        return result == Amf::noDevice ? NotPresent("no device for AMF")
                                       : Unusable("InitDX11", result);
    return TryEncoder(*factory, *context.Get(), *encoder);
}

} // namespace Probe
