#include "installer/ProcessTermination.h"

#include "support/ChildProgram.h"
#include "support/Machine.h"

#include <Pal.h>
#include <windows.h>

#include <gtest/gtest.h>

using namespace Vorlan;

namespace
{

// The error that ending the programs of the folder throws, empty when there is none.
QString EndPrograms(const QString& folder)
{
    try
    {
        KillAllProcessesInFolder(folder);
    }
    catch (const std::runtime_error& error)
    {
        return error.what();
    }
    return QString();
}

} // namespace

TEST(ProcessTerminationFaults, RefusalAndEndlessWaitAreErrors)
{
    const Machine machine;
    ChildProgram program(machine.Path("product/quill.exe"), "wait");
    program.Start();
    {
        const Pal::ScopedFault refused("TerminateProcess", ERROR_ACCESS_DENIED);
        EXPECT_EQ(EndPrograms(machine.Path("product")), "Failed TerminateProcess!");
        EXPECT_EQ(
            machine.Log().last(), "Failed to terminate  \"quill.exe\"  process. Error code =  5");
        EXPECT_TRUE(program.IsRunning());
    }
    {
        const Pal::ScopedFault endless("WaitForSingleObject", WAIT_TIMEOUT);
        EXPECT_EQ(EndPrograms(machine.Path("product")), "Failed waiting TerminateProcess!");
        EXPECT_TRUE(machine.Log().last().startsWith(
            "Error waiting for process  \"quill.exe\"  exit, error code = "));
    }
    EXPECT_EQ(Pal::OpenHandles(), std::vector<std::string>());
}

TEST(ProcessTerminationFaults, WhatCannotBeListedOpenedOrReadIsPassedOver)
{
    const Machine machine;
    ChildProgram program(machine.Path("product/quill.exe"), "wait");
    program.Start();
    {
        const Pal::ScopedFault fault("K32EnumProcesses", ERROR_GEN_FAILURE);
        EXPECT_EQ(EndPrograms(machine.Path("product")), "");
        EXPECT_EQ(machine.Log().last(), "EnumProcesses failed with error  31");
    }
    EXPECT_TRUE(program.IsRunning());
    EXPECT_EQ(EndPrograms(machine.Path("product")), "");
    EXPECT_TRUE(program.HasEnded());
}
