// COM, for C++ only. What is kept, changed and refused is documented at the definition.
#ifndef PAL_OBJBASE_H
#define PAL_OBJBASE_H

#include <windows.h>

struct GUID
{
    uint32_t Data1;
    uint16_t Data2;
    uint16_t Data3;
    uint8_t Data4[8];
};

typedef GUID IID;
typedef GUID CLSID;
typedef const GUID& REFGUID;
typedef const IID& REFIID;
typedef const CLSID& REFCLSID;

bool operator==(REFGUID first, REFGUID second);
bool operator!=(REFGUID first, REFGUID second);

#define CLSCTX_INPROC_SERVER 0x1
#define CLSCTX_INPROC_HANDLER 0x2
#define CLSCTX_LOCAL_SERVER 0x4
#define CLSCTX_REMOTE_SERVER 0x10
#define CLSCTX_INPROC (CLSCTX_INPROC_SERVER | CLSCTX_INPROC_HANDLER)
#define CLSCTX_ALL                                                                                 \
    (CLSCTX_INPROC_SERVER | CLSCTX_INPROC_HANDLER | CLSCTX_LOCAL_SERVER | CLSCTX_REMOTE_SERVER)

#define STGM_READ 0

inline constexpr IID IID_IUnknown = {0, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
inline constexpr IID IID_IPersist = {0x10C, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
inline constexpr IID IID_IPersistFile = {0x10B, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

// The methods of every interface are declared in the published order. Release deletes an object
// with its last reference; no object is deleted through an interface pointer.
struct IUnknown
{
    virtual HRESULT QueryInterface(REFIID iid, void** object) = 0;
    virtual ULONG AddRef() = 0;
    virtual ULONG Release() = 0;

protected:
    ~IUnknown() = default;
};

struct IPersist : IUnknown
{
    virtual HRESULT GetClassID(CLSID* classId) = 0;

protected:
    ~IPersist() = default;
};

struct IPersistFile : IPersist
{
    virtual HRESULT IsDirty() = 0;
    virtual HRESULT Load(LPCWSTR fileName, DWORD mode) = 0;
    virtual HRESULT Save(LPCWSTR fileName, BOOL remember) = 0;
    virtual HRESULT SaveCompleted(LPCWSTR fileName) = 0;
    virtual HRESULT GetCurFile(LPWSTR* fileName) = 0;

protected:
    ~IPersistFile() = default;
};

extern "C"
{
    HRESULT WINAPI CoInitialize(LPVOID reserved);
    void WINAPI CoUninitialize(void);
    HRESULT WINAPI CoCreateInstance(
        REFCLSID classId, IUnknown* outer, DWORD context, REFIID iid, LPVOID* object);
    HRESULT WINAPI CoAllowSetForegroundWindow(IUnknown* object, LPVOID reserved);
}

#endif
