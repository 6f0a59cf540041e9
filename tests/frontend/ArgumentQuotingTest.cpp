#include "ArgumentQuoting.h"

#include "base/Handle.h"
#include "support/ChildProgram.h"
#include "support/Machine.h"

#include <QDir>

#include <gtest/gtest.h>

#include <shellapi.h>

namespace
{

// What a program receives that the shell starts with these arguments, a line for each.
QString Received(const QString& program, const QStringList& arguments)
{
    const std::wstring file = QDir::toNativeSeparators(program).toStdWString();
    const std::wstring parameters = Vorlan::FrontEnd::QuoteArguments(arguments).toStdWString();
    const ChildProgram child(program);
    SHELLEXECUTEINFOW info = {};
    info.cbSize = sizeof info;
    info.fMask = SEE_MASK_NOCLOSEPROCESS;
    info.lpFile = file.c_str();
    info.lpParameters = parameters.c_str();
    info.nShow = SW_HIDE;
    EXPECT_TRUE(ShellExecuteExW(&info));
    const Vorlan::Platform::UniqueProcess process(info.hProcess);
    EXPECT_EQ(WaitForSingleObject(process.Get(), INFINITE), WAIT_OBJECT_0);
    return QString::fromUtf8(ReadFile(program + ".args"));
}

TEST(ArgumentQuotingTest, AProgramReceivesTheSameArguments)
{
    const Machine machine;
    const QStringList arguments{"/S", "/D=C:\\My Programs\\", "C:\\", "a\\\\b", "a\"b", "\"",
        "\\\"", "ends with \\\\", "", "two  blanks", "/LOG=\\\\server\\share\\a b.log", "tab\there",
        "%PATH%", "a^b&c|d", "'single'", "\\\\\" \\\\"};
    EXPECT_EQ(Received(machine.Path("all.exe"), arguments), arguments.join('\n') + '\n');
    int count = 0;
    for (const QString& argument : arguments)
    {
        const QString program = machine.Path(QString("program %1.exe").arg(++count));
        EXPECT_EQ(Received(program, {argument}), argument + '\n');
    }
}

} // namespace
