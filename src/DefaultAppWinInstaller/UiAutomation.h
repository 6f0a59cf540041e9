// The part of the UI Automation interfaces that is used here, in the order of their published
// tables of methods (Windows SDK, UIAutomationClient.h). Methods that are not called
// only fill their slots: their names and arguments are left out.
#pragma once

#include <objbase.h>
#include <oleauto.h>

namespace Vorlan::UiAutomation
{

inline constexpr CLSID classCUIAutomation = {
    0xFF48DBA4, 0x60EF, 0x4201, {0xAA, 0x87, 0x54, 0x10, 0x3E, 0xEF, 0x59, 0x4E}};
inline constexpr IID idIUIAutomation = {
    0x30CBE57D, 0xD9D0, 0x452A, {0xAB, 0x13, 0x7A, 0xC5, 0xAC, 0x48, 0x25, 0xEE}};
inline constexpr IID idIUIAutomationFocusChangedEventHandler = {
    0xC270F6B5, 0x5C69, 0x4290, {0x97, 0x45, 0x7A, 0x7F, 0x97, 0x16, 0x94, 0x68}};
inline constexpr IID idIUIAutomationInvokePattern = {
    0xFB377FBE, 0x8EA6, 0x46D5, {0x9C, 0x73, 0x64, 0x99, 0x64, 0x2D, 0x30, 0x59}};

constexpr int automationIdProperty = 30011; // UIA_AutomationIdPropertyId
constexpr int invokePattern = 10000;        // UIA_InvokePatternId

// The IUnknown of the Windows headers has a public destructor that is not virtual.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

struct IUIAutomationInvokePattern : IUnknown
{
    virtual HRESULT WINAPI Invoke() = 0;

protected:
    ~IUIAutomationInvokePattern() = default;
};

struct IUIAutomationElement : IUnknown
{
    virtual HRESULT WINAPI Unused3() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused4() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused5() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused6() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused7() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused8() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused9() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused10() { return E_NOTIMPL; }
    virtual HRESULT WINAPI GetCurrentPropertyValueEx(
        int property, BOOL ignoreDefaultValue, VARIANT* value) = 0;
    virtual HRESULT WINAPI Unused12() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused13() { return E_NOTIMPL; }
    virtual HRESULT WINAPI GetCurrentPatternAs(int pattern, REFIID iid, void** object) = 0;

protected:
    ~IUIAutomationElement() = default;
};

struct IUIAutomationFocusChangedEventHandler : IUnknown
{
    virtual HRESULT WINAPI HandleFocusChangedEvent(IUIAutomationElement* element) = 0;

protected:
    ~IUIAutomationFocusChangedEventHandler() = default;
};

struct IUIAutomationCacheRequest;

struct IUIAutomation : IUnknown
{
    virtual HRESULT WINAPI Unused3() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused4() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused5() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused6() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused7() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused8() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused9() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused10() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused11() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused12() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused13() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused14() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused15() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused16() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused17() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused18() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused19() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused20() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused21() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused22() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused23() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused24() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused25() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused26() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused27() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused28() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused29() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused30() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused31() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused32() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused33() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused34() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused35() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused36() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused37() { return E_NOTIMPL; }
    virtual HRESULT WINAPI Unused38() { return E_NOTIMPL; }
    virtual HRESULT WINAPI AddFocusChangedEventHandler(
        IUIAutomationCacheRequest* request, IUIAutomationFocusChangedEventHandler* handler) = 0;
    virtual HRESULT WINAPI RemoveFocusChangedEventHandler(
        IUIAutomationFocusChangedEventHandler* handler) = 0;

protected:
    ~IUIAutomation() = default;
};

#pragma GCC diagnostic pop

} // namespace Vorlan::UiAutomation
