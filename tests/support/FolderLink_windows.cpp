#include "support/FolderLink.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QProcess>
#include <QThread>

#include <gtest/gtest.h>

#include <windows.h>

namespace
{

using UnixFileName = char*(CDECL*)(const wchar_t*);

// Wine's own function; null on Windows.
UnixFileName FindUnixFileName()
{
    const FARPROC function =
        GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name");
    return reinterpret_cast<UnixFileName>(reinterpret_cast<void*>(function));
}

QString UnixPath(const QString& path)
{
    const std::wstring native = QDir::toNativeSeparators(path).toStdWString();
    char* const text = FindUnixFileName()(native.c_str());
    const QString unixPath = QString::fromUtf8(text);
    HeapFree(GetProcessHeap(), 0, text);
    return unixPath;
}

} // namespace

void MakeFolderLink(const QString& link, const QString& target)
{
    // Wine's "start" does not always wait for a program of the system below.
    const QDeadlineTimer deadline(30000); // ms
    if (FindUnixFileName())
        QProcess::execute("cmd.exe",
            {"/c", "start", "/wait", "/unix", "/bin/ln", "-s", UnixPath(target), UnixPath(link)});
    else
        QProcess::execute("cmd.exe", {"/c", "mklink", "/J", QDir::toNativeSeparators(link),
                                         QDir::toNativeSeparators(target)});
    while (!QDir(link).exists() && !deadline.hasExpired())
        QThread::yieldCurrentThread();
    EXPECT_TRUE(QDir(link).exists()) << link.toStdString();
}

bool IsRemovalOfFoldersSafe()
{
    return !FindUnixFileName();
}
