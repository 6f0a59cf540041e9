#pragma once

#include "Answer.h"

#ifdef _WIN32
#include <windows.h>
#define FFNV_LOAD_FUNC(path) LoadLibraryExA((path), nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32)
#define FFNV_SYM_FUNC(lib, sym) GetProcAddress((lib), (sym))
#define FFNV_FREE_FUNC(lib) FreeLibrary(lib)
#endif
#define FFNV_LOG_FUNC(context, message, ...)
#define FFNV_DEBUG_LOG_FUNC(context, message, ...)
#include <ffnvcodec/dynlink_loader.h>

#include <optional>

namespace Probe
{

struct CudaLoader
{
    using Functions = CudaFunctions;
    static void Load(Functions** functions) { cuda_load_functions(functions, nullptr); }
    static void Free(Functions** functions) { cuda_free_functions(functions); }
};

struct CuvidLoader
{
    using Functions = CuvidFunctions;
    static void Load(Functions** functions) { cuvid_load_functions(functions, nullptr); }
    static void Free(Functions** functions) { cuvid_free_functions(functions); }
};

struct NvencLoader
{
    using Functions = NvencFunctions;
    static void Load(Functions** functions) { nvenc_load_functions(functions, nullptr); }
    static void Free(Functions** functions) { nvenc_free_functions(functions); }
};

// The functions of one of NVIDIA's libraries, loaded by the vendor's own loader; null without it.
template <typename Loader>
class NvidiaFunctions
{
public:
    NvidiaFunctions() { Loader::Load(&functions); }
    NvidiaFunctions(const NvidiaFunctions&) = delete;
    NvidiaFunctions& operator=(const NvidiaFunctions&) = delete;
    ~NvidiaFunctions() { Loader::Free(&functions); }

    explicit operator bool() const { return functions != nullptr; }
    const typename Loader::Functions* operator->() const { return functions; }

private:
    typename Loader::Functions* functions = nullptr;
};

// A context on the first device.
class CudaContext
{
public:
    CudaContext() = default;
    CudaContext(const CudaContext&) = delete;
    CudaContext& operator=(const CudaContext&) = delete;
    ~CudaContext()
    {
        if (context)
            cuda->cuCtxDestroy(context);
    }

    // Nothing when there is a context now, else the answer for every codec.
    std::optional<Answer> Open()
    {
        constexpr int noDevice = 100; // CUDA_ERROR_NO_DEVICE
        if (!cuda)
            return NotPresent("no CUDA library");
        if (const int error = cuda->cuInit(0))
            return error == noDevice ? NotPresent("no CUDA device") : Unusable("cuInit", error);
        CUdevice device = 0;
        if (const int error = cuda->cuDeviceGet(&device, 0))
            return Unusable("cuDeviceGet", error);
        if (const int error = cuda->cuCtxCreate(&context, 0, device))
            return Unusable("cuCtxCreate", error);
        return std::nullopt;
    }

    CUcontext Get() const { return context; }

private:
    NvidiaFunctions<CudaLoader> cuda;
    CUcontext context = nullptr;
};

} // namespace Probe
