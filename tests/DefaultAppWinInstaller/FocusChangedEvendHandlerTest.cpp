#include "DefaultAppWinInstaller/FocusChangedEvendHandler.h"

#include "support/UiAutomationFakes.h"

#include <gtest/gtest.h>

using namespace Vorlan;

namespace
{

class FocusChangedEvendHandlerTest : public testing::Test
{
protected:
    ~FocusChangedEvendHandlerTest() override
    {
        handler->Release();
        EXPECT_EQ(automation.references, 1) << "the handler gives its reference back";
    }

    AutomationFake automation;
    FocusChangedEvendHandler* const handler =
        new FocusChangedEvendHandler(L"Video_Button", &automation);
};

} // namespace

TEST_F(FocusChangedEvendHandlerTest, IsTheInterfaceThatItSays)
{
    static_assert(std::has_virtual_destructor_v<FocusChangedEvendHandler>); // the last of the slots
    void* object = nullptr;
    for (const IID& iid : {IID_IUnknown, UiAutomation::idIUIAutomationFocusChangedEventHandler})
    {
        EXPECT_EQ(handler->QueryInterface(iid, &object), S_OK);
        EXPECT_EQ(object, handler);
        EXPECT_EQ(handler->Release(), 1u);
    }
    EXPECT_EQ(handler->QueryInterface(UiAutomation::idIUIAutomation, &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(handler->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
    EXPECT_EQ(automation.references, 2);
}

TEST_F(FocusChangedEvendHandlerTest, ClicksTheAwaitedButtonOnceAndUnregisters)
{
    automation.AddFocusChangedEventHandler(nullptr, handler);
    ElementFake other(L"video_Button");
    EXPECT_EQ(automation.Focus(other), S_OK);
    EXPECT_EQ(other.clicks, 0);
    EXPECT_EQ(automation.handler, handler);

    ElementFake button(L"Video_Button");
    button.clickResult = E_ACCESSDENIED;
    EXPECT_EQ(automation.Focus(button), E_ACCESSDENIED) << "what clicking gave";
    EXPECT_EQ(button.clicks, 1);
    EXPECT_EQ(automation.handler, nullptr);
    EXPECT_EQ(button.references, 1);
}

TEST_F(FocusChangedEvendHandlerTest, ElementThatTellsNothingKeepsItWaiting)
{
    automation.AddFocusChangedEventHandler(nullptr, handler);
    ElementFake button(L"Video_Button");
    button.idResult = E_ACCESSDENIED;
    EXPECT_EQ(automation.Focus(button), E_ACCESSDENIED);
    button.idResult = S_OK;
    button.isIdText = false;
    EXPECT_EQ(automation.Focus(button), E_FAIL);
    button.isIdText = true;
    button.patternResult = E_NOINTERFACE;
    EXPECT_EQ(automation.Focus(button), E_NOINTERFACE);
    EXPECT_EQ(automation.handler, handler);

    // A pattern that is not there is no failure: there is nothing to click and nothing to wait for.
    button.patternResult = S_OK;
    button.hasPattern = false;
    EXPECT_EQ(automation.Focus(button), S_OK);
    EXPECT_EQ(button.clicks, 0);
    EXPECT_EQ(automation.handler, nullptr);
}
