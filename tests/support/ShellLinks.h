// Shell links for tests, on both systems.
#pragma once

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include <shlobj.h>

// COM on the test's thread while it lives.
class ComThread
{
public:
    ComThread() { EXPECT_TRUE(SUCCEEDED(CoInitialize(nullptr))); }
    ~ComThread() { CoUninitialize(); }
    ComThread(const ComThread&) = delete;
    ComThread& operator=(const ComThread&) = delete;
};

// A shell link with both of its interfaces.
class TestLink
{
public:
    TestLink()
    {
        EXPECT_EQ(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                      reinterpret_cast<void**>(&link)),
            S_OK);
        EXPECT_EQ(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file)), S_OK);
    }
    ~TestLink()
    {
        file->Release();
        link->Release();
    }
    TestLink(const TestLink&) = delete;
    TestLink& operator=(const TestLink&) = delete;

    IShellLinkW& Link() { return *link; }
    IPersistFile& File() { return *file; }

    HRESULT Save(const std::wstring& path) { return file->Save(path.c_str(), TRUE); }
    HRESULT Load(const std::wstring& path) { return file->Load(path.c_str(), STGM_READ); }

    std::wstring Path()
    {
        wchar_t text[2048] = L"";
        link->GetPath(text, 2048, nullptr, SLGP_RAWPATH);
        return text;
    }
    std::wstring WorkingDirectory()
    {
        wchar_t text[2048] = L"";
        link->GetWorkingDirectory(text, 2048);
        return text;
    }
    std::wstring Arguments()
    {
        wchar_t text[2048] = L"";
        link->GetArguments(text, 2048);
        return text;
    }

private:
    IShellLinkW* link = nullptr;
    IPersistFile* file = nullptr;
};

inline std::wstring WithBackslashes(std::wstring path)
{
    std::replace(path.begin(), path.end(), L'/', L'\\');
    return path;
}
