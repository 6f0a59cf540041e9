// Prints the registry of a machine root in readable form: one block per key, keys sorted.
#include <QString>

#include <Pal.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

constexpr DWORD longestName = 16384; // of a value; keys have shorter ones

struct Value
{
    std::string name;
    DWORD type = REG_NONE;
    std::vector<BYTE> data;
};

std::string Utf8(const std::wstring& text)
{
    return QString::fromStdWString(text).toStdString();
}

std::string TypeName(DWORD type)
{
    switch (type)
    {
    case REG_NONE:
        return "REG_NONE";
    case REG_SZ:
        return "REG_SZ";
    case REG_EXPAND_SZ:
        return "REG_EXPAND_SZ";
    case REG_BINARY:
        return "REG_BINARY";
    case REG_DWORD:
        return "REG_DWORD";
    case REG_MULTI_SZ:
        return "REG_MULTI_SZ";
    case REG_QWORD:
        return "REG_QWORD";
    default:
        return "type " + std::to_string(type);
    }
}

// Texts of a list are separated by " | "; a control character is shown by its number.
std::string ShownText(const std::vector<BYTE>& data)
{
    std::wstring text(data.size() / sizeof(wchar_t), L'\0');
    std::memcpy(text.data(), data.data(), text.size() * sizeof(wchar_t));
    text.erase(text.find_last_not_of(L'\0') + 1);
    std::wstring shown;
    for (const wchar_t character : text)
    {
        if (character == L'\0')
            shown += L" | ";
        else if (character < L' ')
            shown += L"\\x" + std::to_wstring(static_cast<int>(character));
        else
            shown += character;
    }
    return Utf8(shown);
}

std::string ShownNumber(const std::vector<BYTE>& data)
{
    unsigned long long number = 0;
    std::memcpy(&number, data.data(), std::min(data.size(), sizeof(number)));
    char text[48];
    std::snprintf(
        text, sizeof(text), "0x%0*llx (%llu)", static_cast<int>(2 * data.size()), number, number);
    return text;
}

std::string ShownBytes(const std::vector<BYTE>& data)
{
    std::string shown;
    for (const BYTE byte : data)
    {
        char text[4];
        std::snprintf(text, sizeof(text), "%02x ", static_cast<unsigned>(byte));
        shown += text;
    }
    return shown.substr(0, shown.empty() ? 0 : shown.size() - 1);
}

std::string ShownData(const Value& value)
{
    switch (value.type)
    {
    case REG_SZ:
    case REG_EXPAND_SZ:
    case REG_MULTI_SZ:
        return ShownText(value.data);
    case REG_DWORD:
    case REG_QWORD:
        return ShownNumber(value.data);
    default:
        return ShownBytes(value.data);
    }
}

// True until the last item; throws when the registry cannot be read.
bool More(LSTATUS result)
{
    if (result != ERROR_SUCCESS && result != ERROR_NO_MORE_ITEMS)
        throw std::runtime_error("the registry cannot be read, error " + std::to_string(result));
    return result == ERROR_SUCCESS;
}

std::vector<Value> ValuesOf(HKEY key)
{
    std::vector<Value> values;
    for (DWORD index = 0;; ++index)
    {
        std::vector<wchar_t> name(longestName);
        DWORD nameLength = longestName;
        DWORD size = 0;
        Value value;
        if (!More(RegEnumValueW(
                key, index, name.data(), &nameLength, nullptr, &value.type, nullptr, &size)))
            return values;
        value.data.resize(size);
        More(RegQueryValueExW(key, name.data(), nullptr, nullptr, value.data.data(), &size));
        value.name = nameLength ? Utf8({name.data(), nameLength}) : "(Default)";
        values.push_back(std::move(value));
    }
}

std::vector<std::wstring> SubKeysOf(HKEY key)
{
    std::vector<std::wstring> names;
    for (DWORD index = 0;; ++index)
    {
        std::vector<wchar_t> name(longestName);
        DWORD length = longestName;
        if (!More(RegEnumKeyExW(
                key, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr)))
            return names;
        names.emplace_back(name.data(), length);
    }
}

void PrintBlock(const std::string& path, const std::vector<Value>& values)
{
    std::printf("[%s]\n", path.c_str());
    for (const Value& value : values)
        std::printf("  %s  %s  %s\n", value.name.c_str(), TypeName(value.type).c_str(),
            ShownData(value).c_str());
    std::printf("\n");
}

// A key without values has a block only if it has no sub-keys either.
void PrintKey(HKEY parent, const std::wstring& name, const std::string& path)
{
    HKEY key = nullptr;
    More(RegOpenKeyExW(parent, name.c_str(), 0, KEY_READ, &key));
    const std::vector<Value> values = ValuesOf(key);
    const std::vector<std::wstring> subKeys = SubKeysOf(key);
    if (!values.empty() || subKeys.empty())
        PrintBlock(path, values);
    for (const std::wstring& subKey : subKeys)
        PrintKey(key, subKey, path + '\\' + Utf8(subKey));
    RegCloseKey(key);
}

void PrintMachine()
{
    const std::filesystem::path root = Pal::MachineRoot();
    if (!std::filesystem::is_directory(root))
        throw std::runtime_error("there is no machine in " + root.string());
    PrintKey(HKEY_CURRENT_USER, L"", "HKEY_CURRENT_USER");
    PrintKey(HKEY_LOCAL_MACHINE, L"", "HKEY_LOCAL_MACHINE");
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 2 || (argc == 2 && *argv[1] == '-'))
    {
        std::fprintf(stderr, "usage: reg-show [machine root]\n");
        return 2;
    }
    if (argc == 2)
        qputenv("VORLAN_MACHINE", argv[1]);
    try
    {
        PrintMachine();
        return 0;
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "reg-show: %s\n", error.what());
        return 1;
    }
}
