#pragma once

#include "DefaultAppWinInstaller/UiAutomation.h"

#include <atomic>
#include <string>
#include <utility>

// An element of a window, which is a button where it has the pattern of one. It lives as long as
// the test wants and only counts its references.
class ElementFake final : public Vorlan::UiAutomation::IUIAutomationElement,
                          public Vorlan::UiAutomation::IUIAutomationInvokePattern
{
public:
    explicit ElementFake(std::wstring automationId) : id(std::move(automationId)) {}

    HRESULT WINAPI QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    ULONG WINAPI AddRef() override { return static_cast<ULONG>(++references); }
    ULONG WINAPI Release() override { return static_cast<ULONG>(--references); }

    HRESULT WINAPI GetCurrentPropertyValueEx(int property, BOOL, VARIANT* value) override
    {
        if (property != 30011)
            return E_INVALIDARG;
        value->vt = static_cast<VARTYPE>(isIdText ? VT_BSTR : VT_I4);
        if (isIdText)
            value->bstrVal = SysAllocString(id.c_str());
        return idResult;
    }
    HRESULT WINAPI GetCurrentPatternAs(int pattern, REFIID iid, void** object) override
    {
        using namespace Vorlan::UiAutomation;
        *object = nullptr;
        if (pattern != 10000 || iid != idIUIAutomationInvokePattern)
            return E_INVALIDARG;
        if (FAILED(patternResult) || !hasPattern)
            return patternResult;
        AddRef();
        *object = static_cast<IUIAutomationInvokePattern*>(this);
        return S_OK;
    }
    HRESULT WINAPI Invoke() override
    {
        ++clicks;
        return clickResult;
    }

    HRESULT idResult = S_OK;
    bool isIdText = true;
    HRESULT patternResult = S_OK;
    bool hasPattern = true;
    HRESULT clickResult = S_OK;
    std::atomic<int> references = 1;
    int clicks = 0;

private:
    const std::wstring id;
};

// UI Automation itself, for one handler.
class AutomationFake final : public Vorlan::UiAutomation::IUIAutomation
{
public:
    using Handler = Vorlan::UiAutomation::IUIAutomationFocusChangedEventHandler;

    ~AutomationFake() { RemoveFocusChangedEventHandler(handler); }

    HRESULT WINAPI QueryInterface(REFIID iid, void** object) override
    {
        const bool isKnown = iid == IID_IUnknown || iid == Vorlan::UiAutomation::idIUIAutomation;
        *object = isKnown ? this : nullptr;
        if (isKnown)
            AddRef();
        return isKnown ? S_OK : E_NOINTERFACE;
    }
    ULONG WINAPI AddRef() override { return static_cast<ULONG>(++references); }
    ULONG WINAPI Release() override { return static_cast<ULONG>(--references); }

    HRESULT WINAPI AddFocusChangedEventHandler(
        Vorlan::UiAutomation::IUIAutomationCacheRequest*, Handler* added) override
    {
        handler = added;
        handler->AddRef();
        return S_OK;
    }
    HRESULT WINAPI RemoveFocusChangedEventHandler(Handler* removed) override
    {
        if (!removed || removed != handler)
            return E_INVALIDARG;
        handler = nullptr;
        removed->Release();
        return S_OK;
    }

    // The keyboard's focus moves to the element. As UI Automation does, it holds the handler
    // meanwhile.
    HRESULT Focus(ElementFake& element)
    {
        Handler* const called = handler;
        called->AddRef();
        const HRESULT result = called->HandleFocusChangedEvent(&element);
        called->Release();
        return result;
    }

    Handler* handler = nullptr;
    std::atomic<int> references = 1;
};
