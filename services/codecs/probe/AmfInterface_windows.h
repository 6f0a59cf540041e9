#pragma once

#include <cstdint>

// The part of AMD's published AMF interface (version 1.4) that is used here. Its objects begin with
// a pointer to a table of functions; what is not called keeps its place in the table only.
namespace Probe::Amf
{

using Result = int;

constexpr Result ok = 0;
constexpr Result notSupported = 10;
constexpr Result notFound = 11;
constexpr Result noDevice = 17;
constexpr Result codecNotSupported = 30;
constexpr Result encoderNotPresent = 36;

constexpr int direct3D11 = 110;   // AMF_DX11_0
constexpr int formatNv12 = 1;     // AMF_SURFACE_NV12
constexpr int typeInteger = 2;    // AMF_VARIANT_INT64
constexpr int usageTranscode = 0; // the same number for every encoder
constexpr std::uint64_t version = std::uint64_t(1) << 48 | std::uint64_t(4) << 32;

using Unused = void (*)();

struct Variant
{
    std::int32_t type;
    std::int64_t integer;
    std::int64_t rest; // of the largest value
};

struct Context;
struct Component;
struct Factory;

struct ContextTable
{
    Unused acquire;
    long (*release)(Context*);
    Unused queryInterface;
    Unused properties[10];
    Result (*terminate)(Context*);
    Unused directX9[4];
    Result (*initDirectX11)(Context*, void* device, int version);
};

struct Context
{
    const ContextTable* table;
};

struct ComponentTable
{
    Unused acquire;
    long (*release)(Component*);
    Unused queryInterface;
    Result (*setProperty)(Component*, const wchar_t* name, Variant value);
    Unused properties[13]; // the rest of AMFPropertyStorage, and AMFPropertyStorageEx
    Result (*init)(Component*, int format, std::int32_t width, std::int32_t height);
    Unused reInit;
    Result (*terminate)(Component*);
};

struct Component
{
    const ComponentTable* table;
};

struct FactoryTable
{
    Result (*createContext)(Factory*, Context** context);
    Result (*createComponent)(Factory*, Context*, const wchar_t* id, Component** component);
};

struct Factory
{
    const FactoryTable* table;
};

using InitFunction = Result(std::uint64_t version, Factory** factory); // "AMFInit"

} // namespace Probe::Amf
