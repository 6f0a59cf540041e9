#pragma once

#include "DefaultAppWinInstaller/UiAutomation.h"

#include <atomic>
#include <string>

namespace Vorlan
{

// Waits until the element with one automation id gets the keyboard focus, clicks it, and
// unregisters itself. UI Automation calls it on threads of its own. A COM object: it is made with
// one reference and is deleted with the last.
class FocusChangedEvendHandler final : public UiAutomation::IUIAutomationFocusChangedEventHandler
{
public:
    // automation: what it is registered with; the handler holds a reference.
    FocusChangedEvendHandler(std::wstring automationId, UiAutomation::IUIAutomation* automation);
    FocusChangedEvendHandler(const FocusChangedEvendHandler&) = delete;
    FocusChangedEvendHandler& operator=(const FocusChangedEvendHandler&) = delete;

    HRESULT WINAPI QueryInterface(REFIID iid, void** object) override;
    ULONG WINAPI AddRef() override;
    ULONG WINAPI Release() override;
    // The result of clicking, S_OK for any other element, or why the element cannot be read.
    HRESULT WINAPI HandleFocusChangedEvent(UiAutomation::IUIAutomationElement* element) override;

private:
    ~FocusChangedEvendHandler();

    HRESULT Click(UiAutomation::IUIAutomationElement& element);

    std::atomic<ULONG> references = 1;
    const std::wstring awaitedId;
    UiAutomation::IUIAutomation* const automation;
};

} // namespace Vorlan
