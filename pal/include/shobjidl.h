// Starting packaged applications and choosing default ones, for C++ only. What is kept, changed and
// refused is documented at the definition.
#ifndef PAL_SHOBJIDL_H
#define PAL_SHOBJIDL_H

#include <objbase.h>

struct IShellItemArray;

enum ACTIVATEOPTIONS
{
    AO_NONE = 0
};

enum ASSOCIATIONTYPE
{
    AT_FILEEXTENSION = 0
};

enum ASSOCIATIONLEVEL
{
    AL_MACHINE = 0
};

struct IApplicationActivationManager : IUnknown
{
    virtual HRESULT ActivateApplication(
        LPCWSTR appId, LPCWSTR arguments, ACTIVATEOPTIONS options, DWORD* processId) = 0;
    virtual HRESULT ActivateForFile(
        LPCWSTR appId, IShellItemArray* items, LPCWSTR verb, DWORD* processId) = 0;
    virtual HRESULT ActivateForProtocol(
        LPCWSTR appId, IShellItemArray* items, DWORD* processId) = 0;

protected:
    ~IApplicationActivationManager() = default;
};

struct IApplicationAssociationRegistration : IUnknown
{
    virtual HRESULT QueryCurrentDefault(
        LPCWSTR query, ASSOCIATIONTYPE type, ASSOCIATIONLEVEL level, LPWSTR* association) = 0;
    virtual HRESULT QueryAppIsDefault(LPCWSTR query, ASSOCIATIONTYPE type, ASSOCIATIONLEVEL level,
        LPCWSTR appName, BOOL* isDefault) = 0;
    virtual HRESULT QueryAppIsDefaultAll(
        ASSOCIATIONLEVEL level, LPCWSTR appName, BOOL* isDefault) = 0;
    virtual HRESULT SetAppAsDefault(LPCWSTR appName, LPCWSTR set, ASSOCIATIONTYPE type) = 0;
    virtual HRESULT SetAppAsDefaultAll(LPCWSTR appName) = 0;
    virtual HRESULT ClearUserAssociations() = 0;

protected:
    ~IApplicationAssociationRegistration() = default;
};

#endif
