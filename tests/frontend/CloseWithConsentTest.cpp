#include "wizard/CloseWithConsent.h"
#include "support/WizardDriver.h"
#include "wizard/InUsePage.h"
#include "wizard/WizardWindow.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Vorlan::FrontEnd;

namespace
{

// Programs of which one stays when it is asked to close.
struct FakePrograms
{
    std::set<qint64> running{1, 2, 3};
    QStringList calls;
    int pauses = 0;

    ProcessAccess Access()
    {
        const auto start = std::chrono::steady_clock::now();
        const auto note = [this](const char* what, const FileHolder& holder)
        { calls << what + QString::number(holder.processId); };
        return {[] { return std::set<qint64>(); },
            [this](qint64 id) { return running.count(id) != 0 ? 1u : 0u; },
            [=](const FileHolder& holder)
            {
                note("ask ", holder);
                if (holder.processId == 1)
                    running.erase(1);
                return true;
            },
            [=](const FileHolder& holder)
            {
                note("end ", holder);
                return running.erase(holder.processId) != 0;
            },
            [=] { return start + std::chrono::seconds(pauses); }, [this] { ++pauses; }};
    }
};

TEST(CloseWithConsentTest, WhatStaysForTenSecondsIsEndedOnlyAfterAYes)
{
    for (const bool isAgreeing : {false, true})
    {
        FakePrograms programs;
        WizardWindow window;
        auto* page = new InUsePage({});
        window.Add(page);
        window.show();
        page->ShowPrograms({{1, 1, "/a", "good", true, false},
            {2, 1, "/b", "stubborn", true, false}, {3, 1, "/c", "system", true, true}});
        const QString question =
            WizardDriver::WithBox([&] { CloseWithConsent(window, *page, programs.Access()); },
                [&](QWidget& box)
                {
                    EXPECT_EQ(programs.calls, QStringList({"ask 1", "ask 2"}));
                    EXPECT_EQ(programs.pauses, 10);
                    if (isAgreeing)
                        QTest::mouseClick(
                            box.findChild<QWidget*>("confirmationButton"), Qt::LeftButton);
                });
        EXPECT_EQ(
            question, "Not closed: stubborn (2). End them now? What is not saved in them is lost.");
        EXPECT_EQ(programs.running, isAgreeing ? std::set<qint64>{3} : (std::set<qint64>{2, 3}));
    }
}

} // namespace
