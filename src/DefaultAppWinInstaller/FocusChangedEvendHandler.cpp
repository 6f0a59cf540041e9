#include "DefaultAppWinInstaller/FocusChangedEvendHandler.h"

#include "base/Com.h"

namespace Vorlan
{

namespace
{

using namespace UiAutomation;

// A value that an element hands out.
class Variant
{
public:
    Variant() { VariantInit(&value); }
    ~Variant() { VariantClear(&value); }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;

    VARIANT* Put() { return &value; }
    bool IsText() const { return value.vt == VT_BSTR; }
    // A null pointer stands for an empty text.
    std::wstring Text() const { return value.bstrVal ? value.bstrVal : L""; }

private:
    VARIANT value;
};

} // namespace

FocusChangedEvendHandler::FocusChangedEvendHandler(
    std::wstring automationId, IUIAutomation* automationObject)
    : awaitedId(std::move(automationId)), automation(automationObject)
{
    automation->AddRef();
}

FocusChangedEvendHandler::~FocusChangedEvendHandler()
{
    automation->Release();
}

HRESULT FocusChangedEvendHandler::QueryInterface(REFIID iid, void** object)
{
    if (!object)
        return E_POINTER;
    *object = nullptr;
    if (iid != IID_IUnknown && iid != idIUIAutomationFocusChangedEventHandler)
        return E_NOINTERFACE;
    *object = static_cast<IUIAutomationFocusChangedEventHandler*>(this);
    AddRef();
    return S_OK;
}

ULONG FocusChangedEvendHandler::AddRef()
{
    return ++references;
}

ULONG FocusChangedEvendHandler::Release()
{
    const ULONG left = --references;
    if (left == 0)
        delete this;
    return left;
}

HRESULT FocusChangedEvendHandler::HandleFocusChangedEvent(IUIAutomationElement* element)
{
    Variant id;
    const HRESULT result = element->GetCurrentPropertyValueEx(automationIdProperty, TRUE, id.Put());
    if (FAILED(result))
        return result;
    if (!id.IsText())
        return E_FAIL;
    return id.Text() == awaitedId ? Click(*element) : S_OK;
}

HRESULT FocusChangedEvendHandler::Click(IUIAutomationElement& element)
{
    Platform::ComPointer<IUIAutomationInvokePattern> pattern;
    HRESULT result =
        element.GetCurrentPatternAs(invokePattern, idIUIAutomationInvokePattern, pattern.Put());
    if (FAILED(result))
        return result;
    if (pattern)
        result = pattern->Invoke();
    automation->RemoveFocusChangedEventHandler(this);
    return result;
}

} // namespace Vorlan
